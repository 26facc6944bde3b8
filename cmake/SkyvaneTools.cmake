# Tools that make building quicker, each used where it is installed.
find_program(CCACHE ccache)
find_program(MOLD mold)
mark_as_advanced(CCACHE MOLD)

if(CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_CURRENT_LIST_DIR}/compiler-cache)
endif()
if(MOLD AND CMAKE_BUILD_TYPE STREQUAL "Debug")
    add_link_options(-fuse-ld=mold)
endif()
