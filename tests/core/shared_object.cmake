# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# Looks at LIBRARY with NM and READELF: it exports the three services under their version and nothing else, carries the
# name that programs are linked to, and has no means to print or to end the process.

function(read_of library result)
    execute_process(COMMAND ${ARGN} ${library} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${text}" PARENT_SCOPE)
endfunction()

read_of(${LIBRARY} text ${NM} -D --defined-only)
string(REGEX MATCHALL "[A-Za-z] [^ \n]+\n" exports "${text}")
list(TRANSFORM exports STRIP)
list(FILTER exports EXCLUDE REGEX "^A LXPCORE_7") # the version itself
list(SORT exports)
set(expected
    "T lxpGetEnabledCpuFeatures@@LXPCORE_7"
    "T lxpGetMaxCacheSizeB@@LXPCORE_7"
    "T ownGetNumThreads@@LXPCORE_7")
if(NOT exports STREQUAL expected)
    message(SEND_ERROR "exported: ${exports}\nexpected: ${expected}")
endif()

read_of(${LIBRARY} text ${READELF} -d)
if(NOT text MATCHES "SONAME[^\n]*\\[liblxpcore\\.so\\.7\\]")
    message(SEND_ERROR "the name is not liblxpcore.so.7:\n${text}")
endif()

read_of(${LIBRARY} text ${NM} -D --undefined-only)
if(NOT text MATCHES "U open")
    message(SEND_ERROR "the imports cannot be read:\n${text}")
endif()
if(text MATCHES " (_exit|_Exit|exit|abort|quick_exit|__assert_fail|puts|fputs|fwrite|write|printf|fprintf|vfprintf)[@\n]")
    message(SEND_ERROR "imports ${CMAKE_MATCH_1}")
endif()
