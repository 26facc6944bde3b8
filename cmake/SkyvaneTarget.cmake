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
    if(SKYVANE_PRECOMPILED)
        target_precompile_headers(${name} REUSE_FROM skyvane_precompiled_${SKYVANE_PRECOMPILED_SET})
    endif()
endfunction()
