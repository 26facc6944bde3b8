# skyvane_discover_suites(PROGRAM): each suite of a program of tests is one test of ctest. What a process costs that is watched by
# sanitizers, and Qt's start, would otherwise be paid for each of more than a thousand tests.
#
# As a script (cmake -D PROGRAM=… -D OUTPUT=… -P): asks the program for its suites and writes the tests for ctest to read.
if(NOT CMAKE_SCRIPT_MODE_FILE)
    set(SKYVANE_SUITES_SCRIPT ${CMAKE_CURRENT_LIST_FILE})
    function(skyvane_discover_suites name)
        set(output ${CMAKE_CURRENT_BINARY_DIR}/${name}_suites.cmake)
        set(included ${CMAKE_CURRENT_BINARY_DIR}/${name}_tests.cmake)
        file(CONFIGURE OUTPUT ${included} CONTENT
            "if(EXISTS [=[${output}]=])\n  include([=[${output}]=])\nelse()\n  add_test(${name}_isNotBuilt ${name}_isNotBuilt)\nendif()\n")
        add_custom_command(TARGET ${name} POST_BUILD BYPRODUCTS ${output} VERBATIM
            COMMAND ${CMAKE_COMMAND} -D PROGRAM=$<TARGET_FILE:${name}> -D OUTPUT=${output} -P ${SKYVANE_SUITES_SCRIPT}
        )
        set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${included})
    endfunction()
    return()
endif()

execute_process(COMMAND ${PROGRAM} --gtest_list_tests OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "(^|\n)[^ \n]+\\." suites "${listed}")
get_filename_component(program ${PROGRAM} NAME)
set(tests "")
foreach(suite IN LISTS suites)
    string(STRIP "${suite}" suite)
    set(name ${program}.${suite})
    string(REGEX REPLACE "\\.$" "" name ${name})
    string(APPEND tests "add_test([=[${name}]=] [=[${PROGRAM}]=] [=[--gtest_filter=${suite}*]=] --gtest_brief=1)\n"
        "set_tests_properties([=[${name}]=] PROPERTIES TIMEOUT 300)\n")
endforeach()
file(WRITE ${OUTPUT} "${tests}")
