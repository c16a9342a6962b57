# Debian packages of the installed components: cpack -G DEB in a build configured for the prefix
# /usr, which packaging/make-deb does. Each package depends on what its files are linked to.
set(CPACK_PACKAGE_NAME uicomponents)
set(CPACK_PACKAGE_VENDOR "UIComponents")
set(CPACK_PACKAGE_CONTACT "UIComponents developers <developers@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The plugins are linked to the library, which is in a package of its own.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")

set(runtime_package "libuicomponents${UICOMPONENTS_SOVERSION}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${runtime_package}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "Shared library with its skins, for programs that use it.")
# The skins' icons need Qt's SVG icon engine, which is loaded at run time and linked by nobody.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libqt5svg5")
# "OK" and "Cancel" in other languages than English.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "qttranslations5-l10n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_GENERATE_SHLIBS ON)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libuicomponents-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake package and pkg-config file, for building programs.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime_package} (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15)")

set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME uicomponents-designer)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_COMPONENT_DESIGNER_DESCRIPTION "Plugin that offers the library's widgets in Qt Designer.")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_RECOMMENDS "qttools5-dev-tools") # Designer itself

set(CPACK_DEBIAN_OFFICE_PACKAGE_NAME uicomponents-office)
set(CPACK_DEBIAN_OFFICE_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_OFFICE_DESCRIPTION "Plugin that writes and reads spreadsheets with LibreOffice.")
set(CPACK_DEBIAN_OFFICE_PACKAGE_DEPENDS
    "${runtime_package} (= ${PROJECT_VERSION}), libreoffice-calc-nogui | libreoffice-calc, fonts-liberation")

set(CPACK_DEBIAN_WEBENGINE_PACKAGE_NAME uicomponents-webengine)
set(CPACK_DEBIAN_WEBENGINE_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_WEBENGINE_DESCRIPTION "Plugin that shows web pages by Qt WebEngine.")
set(CPACK_DEBIAN_WEBENGINE_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")

include(CPack)
