# Run by ctest with BUILD, CONFIGURATION, EXTENSION, SCRATCH, GENERATOR, COMPILER, its LAUNCHER and FLAGS: installs what programs
# of other projects build with into SCRATCH/prefix, and builds those of tests/packaging/clients with it. What did not change since
# the last time is not built again.
set(prefix ${SCRATCH}/prefix)

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
endfunction()

function(expect_header name)
    if(NOT EXISTS ${prefix}/include/skyvane/${name})
        message(SEND_ERROR "no header ${name}")
    endif()
endfunction()

file(REMOVE_RECURSE ${prefix}/include ${prefix}/lib/cmake)
run(${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIGURATION} --component development --prefix ${prefix})
expect_header(core/enrichment/airlines.h)
expect_header(core/model/aircraft.h)
expect_header(host/extension/schedule.h)
expect_header(platform/net/url_session.h)
expect_header(ui/tree/view.h)

file(GLOB claimed RELATIVE ${prefix}/include ${prefix}/include/*)
if(NOT claimed STREQUAL "skyvane")
    message(SEND_ERROR "a client's include path holds ${claimed}")
endif()

file(MAKE_DIRECTORY ${prefix}/libexec/skyvane)
file(CREATE_LINK ${EXTENSION} ${prefix}/libexec/skyvane/skyvane-widgets SYMBOLIC)

run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR}/clients -B ${SCRATCH}/clients -G ${GENERATOR}
    -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER} "-DCMAKE_CXX_FLAGS=${FLAGS}"
    -D CMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${SCRATCH}/clients)
