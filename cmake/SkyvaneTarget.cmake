include(SkyvaneHardening)
include(SkyvanePrecompiled)

# What every target of this project is compiled with. A target asks for it by name: skyvane_target(NAME).
function(skyvane_target name)
    target_compile_features(${name} PUBLIC cxx_std_20)
    set_target_properties(${name} PROPERTIES CXX_EXTENSIONS OFF)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
    target_compile_options(${name} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Werror)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # GCC 12, optimising, sees an overlap in "." + std::string where there is none.
        target_compile_options(${name} PRIVATE $<$<CONFIG:Release>:-Wno-restrict>)
    endif()
    skyvane_harden(${name})
    if(SKYVANE_PRECOMPILED)
        target_precompile_headers(${name} REUSE_FROM skyvane_precompiled_${SKYVANE_PRECOMPILED_SET})
        target_compile_definitions(${name} PRIVATE $<TARGET_PROPERTY:simdjson::simdjson,INTERFACE_COMPILE_DEFINITIONS>)
    endif()
endfunction()

# A room: a folder with a library of its own, which uses what stands behind USES, and INSIDE what its headers do not show.
# MOC where a header of it has signals.
function(skyvane_room name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "MOC" "" "SOURCES;USES;INSIDE")
    add_library(${name} STATIC ${arg_SOURCES})
    skyvane_target(${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ${arg_MOC})
    target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE ${arg_INSIDE})
endfunction()
