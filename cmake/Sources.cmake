# uicomponents_sources(PUBLIC a.h ... SOURCES b.cpp c.h ...): adds the calling folder's files to
# the library; the headers after PUBLIC are installed.
function(uicomponents_sources)
    cmake_parse_arguments(ARG "" "" "PUBLIC;SOURCES" ${ARGN})
    foreach(file IN LISTS ARG_PUBLIC ARG_SOURCES)
        target_sources(UIComponentsObjects PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
    endforeach()
    file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
    foreach(header IN LISTS ARG_PUBLIC)
        set_property(GLOBAL APPEND PROPERTY UICOMPONENTS_PUBLIC_HEADERS "${folder}/${header}")
    endforeach()
endfunction()
