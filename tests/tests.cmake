# One line a family.
find_package(Python3 COMPONENTS Interpreter REQUIRED)
# Catches a template or palette changed without making the skins again, colours that cannot be
# told apart, and images that a sheet names but nothing makes.
add_test(NAME skins-up-to-date
    COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/Resources/make-skins.py" --check)
uicomponents_test(tst_kvl tst_kvl.cpp)
uicomponents_test(tst_sequence tst_sequence.cpp)
uicomponents_test(tst_inifiles tst_inifiles.cpp support/WriteFaults.cpp INTERNAL)
uicomponents_test(tst_daylight tst_daylight.cpp)
uicomponents_test(tst_strings tst_strings.cpp INTERNAL)
set(office "${PROJECT_SOURCE_DIR}/Platform/Automation/Office")
uicomponents_test(tst_officemessage tst_officemessage.cpp "${office}/OfficeMessage.cpp" "${office}/OfficeValue.cpp"
    "${office}/Host/RowRuns.cpp")
qt5_add_resources(test_skin skin/skin.qrc)
uicomponents_test(tst_skin tst_skin.cpp ${test_skin} INTERNAL)
target_compile_definitions(tst_skin PRIVATE SKIN_SOURCES="${CMAKE_CURRENT_SOURCE_DIR}/skin")
pkg_check_modules(ZBar REQUIRED IMPORTED_TARGET zbar)
if(TARGET OperatorClientPages)
    uicomponents_test(tst_gallery tst_gallery.cpp)
    target_link_libraries(tst_gallery PRIVATE OperatorClientPages)
    uicomponents_skin_resources(tst_gallery "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
    uicomponents_test(tst_faults tst_faults.cpp support/VirtualDisplay.cpp support/VirtualDisplay.h support/WriteFaults.cpp support/WriteFaults.h)
    target_link_libraries(tst_faults PRIVATE OperatorClientPages)
    uicomponents_skin_resources(tst_faults "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
    uicomponents_test(tst_client tst_client.cpp)
    target_link_libraries(tst_client PRIVATE OperatorClientPages)
    uicomponents_translations(tst_client operator-client)
    uicomponents_skin_resources(tst_client "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
    get_property(public_headers GLOBAL PROPERTY UICOMPONENTS_PUBLIC_HEADERS)
    list(JOIN public_headers "|" public_headers)
    target_compile_definitions(tst_client PRIVATE OPERATOR_CLIENT="$<TARGET_FILE:operator-client>"
        PUBLIC_HEADERS="${public_headers}" SOURCE_TREE="${PROJECT_SOURCE_DIR}")
    add_dependencies(tst_client operator-client)
    uicomponents_test(tst_devicepage tst_devicepage.cpp)
    target_link_libraries(tst_devicepage PRIVATE OperatorClientPages)
    uicomponents_skin_resources(tst_devicepage "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
    uicomponents_test(tst_photopages tst_photopages.cpp)
    target_link_libraries(tst_photopages PRIVATE OperatorClientPages)
    uicomponents_skin_resources(tst_photopages "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
    uicomponents_test(tst_clientdialogs tst_clientdialogs.cpp support/QrReader.cpp)
    target_link_libraries(tst_clientdialogs PRIVATE OperatorClientPages PkgConfig::ZBar)
    uicomponents_skin_resources(tst_clientdialogs "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
    uicomponents_test(tst_clientlanguage tst_clientlanguage.cpp support/ShownTexts.cpp)
    target_link_libraries(tst_clientlanguage PRIVATE OperatorClientPages)
    uicomponents_skin_resources(tst_clientlanguage "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
    uicomponents_translations(tst_clientlanguage operator-client)
    target_compile_definitions(tst_clientlanguage PRIVATE
        LIBRARY_TEXTS="${PROJECT_SOURCE_DIR}/translations/UIComponents_zh_CN.ts"
        CLIENT_TEXTS="${PROJECT_SOURCE_DIR}/translations/operator-client_zh_CN.ts")
endif()
uicomponents_test(tst_qrcode tst_qrcode.cpp support/QrReader.cpp INTERNAL)
target_link_libraries(tst_qrcode PRIVATE PkgConfig::ZBar)
uicomponents_test(tst_floatdialog tst_floatdialog.cpp)
uicomponents_test(tst_tiplabel tst_tiplabel.cpp INTERNAL)
uicomponents_test(tst_lineedits tst_lineedits.cpp)
uicomponents_test(tst_righttoleft tst_righttoleft.cpp)
uicomponents_test(tst_ipaddredit tst_ipaddredit.cpp INTERNAL)
uicomponents_test(tst_password tst_password.cpp)
uicomponents_test(tst_addgroup tst_addgroup.cpp INTERNAL)
uicomponents_test(tst_datecalendar tst_datecalendar.cpp INTERNAL)
uicomponents_test(tst_volume tst_volume.cpp INTERNAL)
uicomponents_test(tst_wallmodel tst_wallmodel.cpp INTERNAL)
uicomponents_test(tst_croppicture tst_croppicture.cpp INTERNAL)
uicomponents_test(tst_cutphoto tst_cutphoto.cpp)
uicomponents_test(tst_displaywall tst_displaywall.cpp)
uicomponents_test(tst_normalwall tst_normalwall.cpp)
uicomponents_test(tst_walls tst_walls.cpp support/WallDefaults.cpp)
uicomponents_test(tst_operatewall tst_operatewall.cpp support/WallDefaults.cpp)
get_property(public_headers GLOBAL PROPERTY UICOMPONENTS_PUBLIC_HEADERS)
list(JOIN public_headers "|" public_headers)
uicomponents_test(tst_storm storm/tst_storm.cpp storm/Storm.cpp storm/Dice.cpp storm/WallKinds.cpp
    storm/WidgetKinds.cpp)
target_compile_definitions(tst_storm PRIVATE
    PUBLIC_HEADERS="${public_headers}" SOURCE_TREE="${PROJECT_SOURCE_DIR}")
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
set(web_engine "${PROJECT_SOURCE_DIR}/Platform/Automation/WebEngine")
uicomponents_test(tst_webbridge tst_webbridge.cpp "${web_engine}/Allowances.cpp" "${web_engine}/PageBridge.cpp"
    "${web_engine}/PageBridge.h" "${web_engine}/EngineStart.cpp" "${web_engine}/EngineLog.cpp")
if(TARGET WebEngineProvider AND CMAKE_SYSTEM_NAME STREQUAL "Linux")
    find_package(Qt5 5.15 REQUIRED COMPONENTS Network)
    uicomponents_test(tst_webengine tst_webengine.cpp support/VirtualDisplay.cpp support/VirtualDisplay.h
        office/Processes.cpp office/Processes.h web/RenderProcesses.cpp web/RenderProcesses.h web/WebServer.cpp
        web/WebServer.h)
    target_link_libraries(tst_webengine PRIVATE Qt5::Network)
    # Qt5::Network brings a definition that the shared precompiled headers have not.
    set_target_properties(tst_webengine PROPERTIES DISABLE_PRECOMPILE_HEADERS ON)
    add_dependencies(tst_webengine WebEngineProvider)
    # The leak sanitizer cannot stop the engine's threads at the end.
    set_tests_properties(tst_webengine PROPERTIES ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0")
    if(TARGET OperatorClientPages)
        uicomponents_test(tst_sitemap tst_sitemap.cpp support/VirtualDisplay.cpp support/VirtualDisplay.h)
        target_link_libraries(tst_sitemap PRIVATE OperatorClientPages)
        target_compile_definitions(tst_sitemap PRIVATE MAP_FILE="${PROJECT_SOURCE_DIR}/gallery/Map/site-map.html")
        uicomponents_skin_resources(tst_sitemap "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
        set_tests_properties(tst_sitemap PROPERTIES ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0")
        add_dependencies(tst_sitemap WebEngineProvider)
    endif()
endif()
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
if(TARGET OfficeProvider)
    find_library(XLSXWRITER xlsxwriter REQUIRED)
    uicomponents_test(tst_office tst_office.cpp office/Processes.cpp office/Processes.h)
    target_link_libraries(tst_office PRIVATE "${XLSXWRITER}")
    target_compile_definitions(tst_office PRIVATE OFFICE_PROGRAM="${UICOMPONENTS_OFFICE_PROGRAM}"
        OFFICE_READER="${CMAKE_CURRENT_SOURCE_DIR}/office/read_workbook.py")
    add_dependencies(tst_office OfficeProvider)
endif()
if(TARGET OfficeProvider AND TARGET OperatorClientPages)
    uicomponents_test(tst_alarms tst_alarms.cpp excel/RecordedObject.cpp excel/RecordedObject.h)
    target_link_libraries(tst_alarms PRIVATE OperatorClientPages)
    add_dependencies(tst_alarms OfficeProvider)
endif()
# Catches a text without a finished translation, one that the sources no longer have, and a translation that
# lost a place mark, a mnemonic or an ending.
get_target_property(lupdate Qt5::lupdate LOCATION)
add_test(NAME translations-complete
    COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/translations/update.py" --check --lupdate "${lupdate}")
# Catches a text that the operator sees and that no translator can reach.
add_test(NAME texts-translatable
    COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/translations/check-literals.py")
# Catches a dependency that goes against the direction of the rooms.
add_test(NAME include-directions
    COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/cmake/check-directions.py")
# Catches a widget that the styling page leaves out, and a name there that no rule can use.
get_property(public_headers GLOBAL PROPERTY UICOMPONENTS_PUBLIC_HEADERS)
add_test(NAME styling-page
    COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/cmake/check-styling.py" ${public_headers})
if(DOXYGEN)
    # Catches a public symbol without words, and words about a parameter that is none.
    set(check_documentation "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/cmake/check-documentation.py"
        "${DOXYGEN}" "${PROJECT_BINARY_DIR}/reference/Doxyfile")
    add_test(NAME documentation COMMAND ${check_documentation})
    # Catches the check itself passing over a kind of symbol.
    add_test(NAME documentation-check
        COMMAND ${check_documentation} "${CMAKE_CURRENT_SOURCE_DIR}/reference/Unexplained.h")
    set(unexplained "argument 'strength'" "value Unexplained::Value::WithoutWords" "typedef Unexplained::Type"
        "property Unexplained::property" "function Unexplained::Function" "signal Unexplained::Signal"
        "class WordlessClass" "namespace Free is" "function Free::Wordless is not explained\n$")
    list(JOIN unexplained ".*" unexplained)
    set_tests_properties(documentation-check PROPERTIES PASS_REGULAR_EXPRESSION "^[^\n]*${unexplained}")
endif()
# Catches a header, a dependency or a skin that is missing where the library is installed.
set(sanitizer_flags "")
if(UICOMPONENTS_SANITIZE)
    set(sanitizer_flags "-fsanitize=${UICOMPONENTS_SANITIZE}")
endif()
set(webengine_test "")
if(TARGET tst_webengine)
    set(webengine_test "$<TARGET_FILE:tst_webengine>")
endif()
add_test(NAME installed-package
    COMMAND "${CMAKE_COMMAND}"
        "-DBUILD_DIR=${PROJECT_BINARY_DIR}" "-DSOURCE_DIR=${CMAKE_CURRENT_SOURCE_DIR}/installed"
        "-DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/installed" "-DGENERATOR=${CMAKE_GENERATOR}"
        "-DCXX=${CMAKE_CXX_COMPILER}" "-DCXX_FLAGS=${sanitizer_flags}"
        "-DLIBDIR=${CMAKE_INSTALL_LIBDIR}" "-DWEBENGINE_TEST=${webengine_test}"
        -P "${CMAKE_CURRENT_SOURCE_DIR}/installed/check.cmake")
set_tests_properties(installed-package PROPERTIES ENVIRONMENT "${test_environment}")
uicomponents_test(tst_basicui tst_basicui.cpp INTERNAL)
uicomponents_test(tst_cutdialogs tst_cutdialogs.cpp INTERNAL)
uicomponents_test(tst_personimage tst_personimage.cpp)
uicomponents_test(tst_translations tst_translations.cpp support/ShownTexts.cpp)
target_compile_definitions(tst_translations PRIVATE
    LIBRARY_TEXTS="${PROJECT_SOURCE_DIR}/translations/UIComponents_zh_CN.ts")
# The fuzz targets are a build of their own, by clang and with its sanitizers; here each gets a short run.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT UICOMPONENTS_SANITIZE)
    set(fuzz "${PROJECT_SOURCE_DIR}/fuzz/run")
    add_test(NAME fuzz-build COMMAND "${fuzz}" --build)
    set_tests_properties(fuzz-build PROPERTIES FIXTURES_SETUP fuzz TIMEOUT 900)
    foreach(target base64 callback inifile message picture texts walllayout workbook)
        add_test(NAME fuzz-${target} COMMAND "${fuzz}" 10000 ${target})
        set_tests_properties(fuzz-${target} PROPERTIES FIXTURES_REQUIRED fuzz TIMEOUT 300)
    endforeach()
endif()
