# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# Runs a program and fails unless it ends with the code EXIT and what it prints matches OUTPUT.
#
# usage: cmake -D EXIT=<code> -D OUTPUT=<regular expression> -P expect_run.cmake -- <program> [<argument>...]

math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
    if(DEFINED command)
        list(APPEND command "${CMAKE_ARGV${index}}")
    elseif(CMAKE_ARGV${index} STREQUAL "--")
        set(command "")
    endif()
endforeach()

execute_process(COMMAND ${command} RESULT_VARIABLE exit OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT exit STREQUAL EXIT)
    message(FATAL_ERROR "ended with ${exit}, not with ${EXIT}:\n${output}")
endif()
if(NOT output MATCHES "${OUTPUT}")
    message(FATAL_ERROR "does not match '${OUTPUT}':\n${output}")
endif()
