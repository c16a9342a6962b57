include(CMakePackageConfigHelpers)

# Where the library looks for provider plugins, beside itself.
set(UICOMPONENTS_AUTOMATION_FOLDER "UIComponents/automation")

# Two components, which the packages follow: Runtime is what a program needs that is linked to the
# library, Development what building one needs. The skins and the translations are compiled into
# the library.
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME Development)
install(TARGETS UIComponents EXPORT UIComponentsTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)
install(FILES "${PROJECT_BINARY_DIR}/generated/UIComponentsExport.h"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/UIComponents)

# The folders list their public headers in this property, relative to the source tree, so
# that <UI/TVWall/KvTVWallDisplayWnd.h> reads the same installed and not installed.
get_property(public_headers GLOBAL PROPERTY UICOMPONENTS_PUBLIC_HEADERS)
foreach(header IN LISTS public_headers)
    get_filename_component(folder "${header}" DIRECTORY)
    install(FILES "${PROJECT_SOURCE_DIR}/${header}"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/UIComponents/${folder}")
endforeach()

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/UIComponents")
install(EXPORT UIComponentsTargets NAMESPACE UIComponents:: DESTINATION "${package_dir}")
configure_package_config_file(cmake/UIComponentsConfig.cmake.in
    "${PROJECT_BINARY_DIR}/UIComponentsConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/UIComponentsConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/UIComponentsConfig.cmake"
    "${PROJECT_BINARY_DIR}/UIComponentsConfigVersion.cmake"
    "${PROJECT_SOURCE_DIR}/cmake/SkinResources.cmake"
    DESTINATION "${package_dir}")

set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_to_prefix "/${pc_dir}" "/")
configure_file(cmake/UIComponents.pc.in "${PROJECT_BINARY_DIR}/UIComponents.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/UIComponents.pc" DESTINATION "${pc_dir}")
