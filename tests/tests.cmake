# One line a family.
find_package(Python3 COMPONENTS Interpreter REQUIRED)
# Catches a template or palette changed without making the skins again, colours that cannot be
# told apart, and images that a sheet names but nothing makes.
add_test(NAME skins-up-to-date
    COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/Resources/make-skins.py" --check)
uicomponents_test(tst_kvl tst_kvl.cpp)
uicomponents_test(tst_sequence tst_sequence.cpp)
uicomponents_test(tst_inifiles tst_inifiles.cpp)
uicomponents_test(tst_daylight tst_daylight.cpp)
uicomponents_test(tst_strings tst_strings.cpp INTERNAL)
qt5_add_resources(test_skin skin/skin.qrc)
uicomponents_test(tst_skin tst_skin.cpp ${test_skin})
target_compile_definitions(tst_skin PRIVATE SKIN_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}/skin")
if(TARGET OperatorClientPages)
    uicomponents_test(tst_gallery tst_gallery.cpp)
    target_link_libraries(tst_gallery PRIVATE OperatorClientPages)
    uicomponents_skin_resources(tst_gallery "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
endif()
pkg_check_modules(ZBar REQUIRED IMPORTED_TARGET zbar)
uicomponents_test(tst_qrcode tst_qrcode.cpp support/QrReader.cpp INTERNAL)
target_link_libraries(tst_qrcode PRIVATE PkgConfig::ZBar)
uicomponents_test(tst_floatdialog tst_floatdialog.cpp INTERNAL)
uicomponents_test(tst_tiplabel tst_tiplabel.cpp INTERNAL)
uicomponents_test(tst_lineedits tst_lineedits.cpp)
uicomponents_test(tst_ipaddredit tst_ipaddredit.cpp INTERNAL)
uicomponents_test(tst_password tst_password.cpp)
uicomponents_test(tst_volume tst_volume.cpp INTERNAL)
uicomponents_test(tst_wallmodel tst_wallmodel.cpp INTERNAL)
uicomponents_test(tst_croppicture tst_croppicture.cpp INTERNAL)
uicomponents_test(tst_cutphoto tst_cutphoto.cpp)
uicomponents_test(tst_displaywall tst_displaywall.cpp)
uicomponents_test(tst_walls tst_walls.cpp)
uicomponents_test(tst_operatewall tst_operatewall.cpp)
uicomponents_test(tst_wallstorm tst_wallstorm.cpp)
uicomponents_test(tst_automation tst_automation.cpp automation/ProbeObject.h)
target_compile_definitions(tst_automation PRIVATE PROBE_PLUGINS="${CMAKE_CURRENT_BINARY_DIR}/probe-plugins")
foreach(provider ForeignProvider ProbeProvider OtherProvider) # asked in the order of their file names
    add_library(${provider} MODULE automation/${provider}.cpp automation/ProbeObject.h)
    target_link_libraries(${provider} PRIVATE UIComponents)
    set_target_properties(${provider} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/probe-plugins")
    uicomponents_warnings(${provider})
    add_dependencies(tst_automation ${provider})
endforeach()
set_target_properties(ForeignProvider PROPERTIES OUTPUT_NAME 0-ForeignProvider)
set_target_properties(ProbeProvider PROPERTIES OUTPUT_NAME 1-ProbeProvider)
set_target_properties(OtherProvider PROPERTIES OUTPUT_NAME 2-OtherProvider)
uicomponents_test(tst_linkweb tst_linkweb.cpp)
uicomponents_test(tst_excel tst_excel.cpp excel/RecordedObject.cpp excel/RecordedObject.h)
if(TARGET UIComponentsDesigner)
    find_package(Qt5 5.15 REQUIRED COMPONENTS UiPlugin UiTools)
    uicomponents_test(tst_designer tst_designer.cpp)
    target_link_libraries(tst_designer PRIVATE Qt5::UiTools Qt5::UiPlugin)
    add_dependencies(tst_designer UIComponentsDesigner)
    get_property(public_headers GLOBAL PROPERTY UICOMPONENTS_PUBLIC_HEADERS)
    list(JOIN public_headers "|" public_headers)
    target_compile_definitions(tst_designer PRIVATE
        DESIGNER_PLUGINS="$<TARGET_FILE_DIR:UIComponentsDesigner>" PUBLIC_HEADERS="${public_headers}"
        SOURCE_TREE="${PROJECT_SOURCE_DIR}" FORM="${CMAKE_CURRENT_SOURCE_DIR}/designer/AllWidgets.ui")
endif()
# Catches a dependency that goes against the direction of the rooms.
add_test(NAME include-directions
    COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/cmake/check-directions.py")
# Catches a header, a dependency or a skin that is missing where the library is installed.
set(sanitizer_flags "")
if(UICOMPONENTS_SANITIZE)
    set(sanitizer_flags "-fsanitize=${UICOMPONENTS_SANITIZE}")
endif()
add_test(NAME installed-package
    COMMAND "${CMAKE_COMMAND}"
        "-DBUILD_DIR=${PROJECT_BINARY_DIR}" "-DSOURCE_DIR=${CMAKE_CURRENT_SOURCE_DIR}/installed"
        "-DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/installed" "-DGENERATOR=${CMAKE_GENERATOR}"
        "-DCXX=${CMAKE_CXX_COMPILER}" "-DCXX_FLAGS=${sanitizer_flags}"
        -P "${CMAKE_CURRENT_SOURCE_DIR}/installed/check.cmake")
set_tests_properties(installed-package PROPERTIES ENVIRONMENT "${test_environment}")
uicomponents_test(tst_basicui tst_basicui.cpp INTERNAL)
uicomponents_test(tst_cutdialogs tst_cutdialogs.cpp INTERNAL)
uicomponents_test(tst_personimage tst_personimage.cpp)
