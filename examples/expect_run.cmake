# Copyright (c) 2026 The lxpm authors
# SPDX-License-Identifier: MIT

# Runs a program and fails unless it ends with the code EXIT and what it prints matches OUTPUT; and, if EMPTY names a
# directory, unless it leaves nothing there.
#
# usage: cmake -D EXIT=<code> -D OUTPUT=<regular expression> -D EMPTY=[<directory>]
#              -P expect_run.cmake -- <program> [<argument>...]

math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
    if(DEFINED command)
        list(APPEND command "${CMAKE_ARGV${index}}")
    elseif(CMAKE_ARGV${index} STREQUAL "--")
        set(command "")
    endif()
endforeach()

set(directory ${CMAKE_CURRENT_BINARY_DIR})
if(EMPTY)
    set(directory ${EMPTY})
    file(REMOVE_RECURSE ${directory})
    file(MAKE_DIRECTORY ${directory})
endif()

execute_process(COMMAND ${command} WORKING_DIRECTORY ${directory} RESULT_VARIABLE exit OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT exit STREQUAL EXIT)
    message(FATAL_ERROR "ended with ${exit}, not with ${EXIT}:\n${output}")
endif()
if(NOT output MATCHES "${OUTPUT}")
    message(FATAL_ERROR "does not match '${OUTPUT}':\n${output}")
endif()
if(EMPTY)
    file(GLOB left LIST_DIRECTORIES true ${directory}/* ${directory}/.*)
    list(REMOVE_ITEM left ${directory}/. ${directory}/..)
    if(left)
        message(FATAL_ERROR "left behind: ${left}")
    endif()
endif()
