# What programs of other projects build with: headers, static libraries, and find_package(Skyvane). Its component Core, which is
# always there, knows no toolkit; Host has what a desktop host is made of, with Qt.
# Only this part: cmake --install BUILD --component development
include(CMakePackageConfigHelpers)

set(skyvane_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Skyvane)
set(skyvane_extension_program ${CMAKE_INSTALL_LIBEXECDIR}/skyvane/skyvane-widgets)

add_custom_target(skyvane_headers ALL)

# skyvane_package(TARGET AS NAME IN COMPONENT HEADERS FILE...): installs this folder's library as Skyvane::NAME, and these of its
# headers. What they include as "core/…", the installed ones, made in the build folder's include/skyvane, include as
# <skyvane/core/…>: a client may have a core/ of its own.
function(skyvane_package target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "AS;IN" "HEADERS")
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${arg_AS})
    target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    # Objects for link-time optimisation alone would bind clients to this compiler.
    if(CMAKE_INTERPROCEDURAL_OPTIMIZATION AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -ffat-lto-objects)
    endif()
    install(TARGETS ${target} EXPORT Skyvane${arg_IN}Targets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    )
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE room)
    set(made)
    foreach(header IN LISTS arg_HEADERS)
        cmake_path(GET header PARENT_PATH folder)
        cmake_path(SET path NORMALIZE skyvane/${room}/${folder})
        set(source ${CMAKE_CURRENT_SOURCE_DIR}/${header})
        set(output ${PROJECT_BINARY_DIR}/include/skyvane/${room}/${header})
        file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/include/${path})
        add_custom_command(
            OUTPUT ${output}
            COMMAND sed -E "s|^#include \"(.+)\"|#include <skyvane/\\1>|" ${source} > ${output}
            DEPENDS ${source}
            VERBATIM
        )
        install(FILES ${output} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${path} COMPONENT development)
        set_property(GLOBAL APPEND PROPERTY SKYVANE_HEADERS_${arg_IN} skyvane/${room}/${header})
        list(APPEND made ${output})
    endforeach()
    add_custom_target(${target}_headers DEPENDS ${made})
    add_dependencies(skyvane_headers ${target}_headers)
endfunction()

foreach(component Core Host)
    install(EXPORT Skyvane${component}Targets NAMESPACE Skyvane::
        DESTINATION ${skyvane_package_folder} COMPONENT development
    )
endforeach()
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/SkyvaneConfig.cmake.in ${PROJECT_BINARY_DIR}/SkyvaneConfig.cmake
    INSTALL_DESTINATION ${skyvane_package_folder} PATH_VARS skyvane_extension_program
)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/SkyvaneConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/SkyvaneConfig.cmake ${PROJECT_BINARY_DIR}/SkyvaneConfigVersion.cmake
    DESTINATION ${skyvane_package_folder} COMPONENT development
)
