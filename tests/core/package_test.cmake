# Run by ctest with BUILD, EXAMPLE, SCRATCH, GENERATOR, CONFIGURATION, COMPILER and FLAGS.
set(prefix ${SCRATCH}/prefix)

function(run)
    execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
endfunction()

function(expect_output expected)
    execute_process(COMMAND ${SCRATCH}/example/who ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output STREQUAL "${expected}\n")
        message(SEND_ERROR "who ${ARGN}: expected \"${expected}\", found \"${output}\"")
    endif()
endfunction()

function(expect_header name)
    if(NOT EXISTS ${prefix}/include/skyvane/${name})
        message(SEND_ERROR "no header ${name}")
    endif()
endfunction()

# Each installed header on its own, found by nothing but what the package names.
function(write_client_of_every_header)
    file(GLOB_RECURSE headers RELATIVE ${prefix}/include ${prefix}/include/*.h)
    list(TRANSFORM headers REPLACE "(.+)" "#include <\\1>\n" OUTPUT_VARIABLE includes)
    string(JOIN "" includes ${includes})
    file(WRITE ${SCRATCH}/client/all.cpp "${includes}")
    file(WRITE ${SCRATCH}/client/CMakeLists.txt "cmake_minimum_required(VERSION 3.25)
project(Client LANGUAGES CXX)
find_package(Skyvane REQUIRED)
add_library(client OBJECT all.cpp)
target_link_libraries(client PRIVATE Skyvane::Core)
")
endfunction()

function(build_client source name)
    run(${CMAKE_COMMAND} -S ${source} -B ${SCRATCH}/${name} -G ${GENERATOR}
        -D CMAKE_CXX_COMPILER=${COMPILER} "-DCMAKE_CXX_FLAGS=${FLAGS}" -D CMAKE_PREFIX_PATH=${prefix})
    run(${CMAKE_COMMAND} --build ${SCRATCH}/${name})
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
run(${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIGURATION} --component development --prefix ${prefix})
expect_header(core/enrichment/airlines.h)
expect_header(core/model/aircraft.h)
expect_header(platform/net/url_session.h)
expect_header(ui/tree/view.h)

build_client(${EXAMPLE} example)
expect_output("Boeing 737-800, United Airlines" b738 "UAL123  ")
expect_output("Embraer E175, Aeroméxico" E75L AMX402)
expect_output("unknown model, unknown airline" ZZZZ N123AB)

write_client_of_every_header()
build_client(${SCRATCH}/client client-build)

file(REMOVE_RECURSE ${SCRATCH})
