# What programs of other projects build with: headers, static libraries, and find_package(Skyvane) with Skyvane::Core.
# Only this part: cmake --install BUILD --component development
include(CMakePackageConfigHelpers)

set(skyvane_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Skyvane)
set(skyvane_headers_folder ${CMAKE_INSTALL_INCLUDEDIR}/skyvane)
set(skyvane_packaged SkyvaneCore skyvane_ui_tree skyvane_platform)

set_target_properties(SkyvaneCore PROPERTIES EXPORT_NAME Core)
set_target_properties(skyvane_ui_tree PROPERTIES EXPORT_NAME ViewTree)
set_target_properties(skyvane_platform PROPERTIES EXPORT_NAME Platform)

foreach(target IN LISTS skyvane_packaged)
    # Clients include <skyvane/core/…>, the headers each other as "core/…".
    target_include_directories(${target} INTERFACE
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
        $<INSTALL_INTERFACE:${skyvane_headers_folder}>
    )
    # Objects for link-time optimisation alone would bind clients to this compiler.
    if(CMAKE_INTERPROCEDURAL_OPTIMIZATION AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -ffat-lto-objects)
    endif()
endforeach()

install(TARGETS ${skyvane_packaged} EXPORT SkyvaneTargets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
)
install(DIRECTORY core platform
    DESTINATION ${skyvane_headers_folder} COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN "authorities.h" EXCLUDE PATTERN "broken_pipe.h" EXCLUDE PATTERN "catalogue.h" EXCLUDE
    PATTERN "configuration_file.h" EXCLUDE PATTERN "handles.h" EXCLUDE PATTERN "outcome.h" EXCLUDE
    PATTERN "programs.h" EXCLUDE PATTERN "resting_connection.h" EXCLUDE PATTERN "transfer.h" EXCLUDE
)
install(DIRECTORY ui/tree
    DESTINATION ${skyvane_headers_folder}/ui COMPONENT development
    FILES_MATCHING PATTERN "*.h"
)
install(EXPORT SkyvaneTargets NAMESPACE Skyvane::
    DESTINATION ${skyvane_package_folder} COMPONENT development
)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/SkyvaneConfig.cmake.in
    ${PROJECT_BINARY_DIR}/SkyvaneConfig.cmake INSTALL_DESTINATION ${skyvane_package_folder}
)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/SkyvaneConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/SkyvaneConfig.cmake ${PROJECT_BINARY_DIR}/SkyvaneConfigVersion.cmake
    DESTINATION ${skyvane_package_folder} COMPONENT development
)
