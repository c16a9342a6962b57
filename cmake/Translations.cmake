# uicomponents_translations(target name): compiles translations/<name>_<language>.ts into the target, where
# it is found at run time as
#     :/<name>/translations/<name>_<language>.qm
# Like the skins, translations need no files beside the library or the program.
function(uicomponents_translations target name)
    file(GLOB ts_files CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/${name}_*.ts")
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/translations/${target}")
    set_source_files_properties(${ts_files} PROPERTIES OUTPUT_LOCATION "${folder}")
    # A text without a translation is shown in English; the test translations-complete forbids it.
    qt5_add_translation(qm_files ${ts_files} OPTIONS -silent)
    set(qrc "<RCC>\n  <qresource prefix=\"/${name}/translations\">\n")
    foreach(file IN LISTS qm_files)
        get_filename_component(alias "${file}" NAME)
        string(APPEND qrc "    <file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    string(APPEND qrc "  </qresource>\n</RCC>\n")
    # The resource compiler names its function after the file: two of one name would clash in a program that
    # links both.
    set(qrc_file "${folder}/${name}Translations.qrc")
    file(GENERATE OUTPUT "${qrc_file}" CONTENT "${qrc}")
    set(compiled "${folder}/${name}Translations.cpp")
    add_custom_command(OUTPUT "${compiled}"
        COMMAND Qt5::rcc --name "${name}Translations" --output "${compiled}" "${qrc_file}"
        DEPENDS "${qrc_file}" ${qm_files} VERBATIM)
    target_sources(${target} PRIVATE "${compiled}")
    set_source_files_properties("${compiled}" PROPERTIES SKIP_PRECOMPILE_HEADERS ON SKIP_AUTOGEN ON)
endfunction()

# Takes over new and changed texts of the sources into the files of translations/, for a translator to
# finish; see docs/translations.md.
find_package(Python3 COMPONENTS Interpreter)
if(Python3_FOUND)
    get_target_property(lupdate Qt5::lupdate LOCATION)
    add_custom_target(translations-update
        COMMAND "${Python3_EXECUTABLE}" "${PROJECT_SOURCE_DIR}/translations/update.py" --lupdate "${lupdate}"
        COMMENT "Taking over the texts of the sources" VERBATIM)
endif()
