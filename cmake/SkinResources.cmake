# Compiles the skin tree into the resource system. A file that lies in the tree as
#     <application>/<skin>/<sub folder>/<file>
# is found at run time as
#     :/<application>/UICommonModule/<skin>/UICommonModule/<sub folder>/<file>
# which is the path that CommonFun::GetSkinPath and CommonFun::SetStyleSheet build.
function(uicomponents_skin_resources target root)
    file(GLOB skins CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE "${root}" "${root}/*/*")
    set(qrc "<RCC>\n")
    foreach(skin IN LISTS skins)
        if(NOT IS_DIRECTORY "${root}/${skin}")
            continue()
        endif()
        get_filename_component(application "${skin}" DIRECTORY)
        get_filename_component(version "${skin}" NAME)
        string(APPEND qrc "  <qresource prefix=\"/${application}/UICommonModule/${version}/UICommonModule\">\n")
        file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE "${root}/${skin}" "${root}/${skin}/*")
        list(SORT files)
        foreach(file IN LISTS files)
            string(APPEND qrc "    <file alias=\"${file}\">${root}/${skin}/${file}</file>\n")
        endforeach()
        string(APPEND qrc "  </qresource>\n")
    endforeach()
    string(APPEND qrc "</RCC>\n")
    set(qrc_file "${PROJECT_BINARY_DIR}/generated/UICommonModuleSkins.qrc")
    file(GENERATE OUTPUT "${qrc_file}" CONTENT "${qrc}")
    # file(GENERATE) writes after configuring; AUTORCC wants the file while configuring.
    if(NOT EXISTS "${qrc_file}")
        file(WRITE "${qrc_file}" "${qrc}")
    endif()
    qt5_add_resources(compiled "${qrc_file}")
    target_sources(${target} PRIVATE ${compiled})
endfunction()
