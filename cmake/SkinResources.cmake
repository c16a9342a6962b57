# uicomponents_skin_resources(target root module): compiles a skin tree into the target by the
# resource system. A file that lies in the tree as
#     <application>/<skin>/<sub folder>/<file>
# is found at run time as
#     :/<application>/<module>/<skin>/<module>/<sub folder>/<file>
# which is the path that CommonFun::GetSkinPath(module, "<sub folder>/<file>") builds and
# CommonFun::SetStyleSheet(widget, "<sub folder>", "<file>", module) reads. The library's own
# module is UICommonModule; the gallery's is OperatorClient:
#     uicomponents_skin_resources(<gallery target> "${PROJECT_SOURCE_DIR}/gallery/skins" OperatorClient)
#     :/Corvale/OperatorClient/Black/OperatorClient/MainWindow/OperatorClient.css
# Installed with the CMake package, so that an application can add skins of its own to the library's module.
function(uicomponents_skin_resources target root module)
    file(GLOB skins CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE "${root}" "${root}/*/*")
    # The templates from which the skins are made may lie beside them.
    list(FILTER skins EXCLUDE REGEX "^templates/")
    set(qrc "<RCC>\n")
    foreach(skin IN LISTS skins)
        if(NOT IS_DIRECTORY "${root}/${skin}")
            continue()
        endif()
        get_filename_component(application "${skin}" DIRECTORY)
        get_filename_component(version "${skin}" NAME)
        string(APPEND qrc "  <qresource prefix=\"/${application}/${module}/${version}/${module}\">\n")
        file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE "${root}/${skin}" "${root}/${skin}/*")
        list(SORT files)
        foreach(file IN LISTS files)
            string(APPEND qrc "    <file alias=\"${file}\">${root}/${skin}/${file}</file>\n")
        endforeach()
        string(APPEND qrc "  </qresource>\n")
        # A client that passes a complete resource folder to XCM::GetSkinPath gets it nested in a second
        # prefix. Sheets that are asked for so end with .qss and lie there too.
        list(FILTER files INCLUDE REGEX "[.]qss$")
        foreach(file IN LISTS files)
            get_filename_component(folder "${file}" DIRECTORY)
            get_filename_component(name "${file}" NAME)
            set(nested "${application}/${module}/${version}/${module}/${folder}")
            string(APPEND qrc "  <qresource prefix=\"/${application}/:/${version}/:/${nested}\">\n")
            string(APPEND qrc "    <file alias=\"${name}\">${root}/${skin}/${file}</file>\n")
            string(APPEND qrc "  </qresource>\n")
        endforeach()
    endforeach()
    string(APPEND qrc "</RCC>\n")
    # Written now, because qt5_add_resources reads it for the dependencies; and only when it
    # changed, so that configuring again does not compile it again.
    set(qrc_file "${PROJECT_BINARY_DIR}/generated/${module}Skins.qrc")
    set(qrc_before "")
    if(EXISTS "${qrc_file}")
        file(READ "${qrc_file}" qrc_before)
    endif()
    if(NOT qrc STREQUAL qrc_before)
        file(WRITE "${qrc_file}" "${qrc}")
    endif()
    qt5_add_resources(compiled "${qrc_file}")
    target_sources(${target} PRIVATE ${compiled})
endfunction()
