# uicomponents_precompiled(target...): these use the common precompiled headers, which are compiled once.
# The compiler takes them only where all is defined that was defined for them, hence the definitions.
add_library(UIComponentsPrecompiled OBJECT
    "${CMAKE_CURRENT_LIST_DIR}/precompiled/Common.cpp" "${CMAKE_CURRENT_LIST_DIR}/precompiled/Common.h")
target_link_libraries(UIComponentsPrecompiled PRIVATE Qt5::Core Qt5::Gui Qt5::Widgets)
target_precompile_headers(UIComponentsPrecompiled PRIVATE "${CMAKE_CURRENT_LIST_DIR}/precompiled/Common.h")
set_target_properties(UIComponentsPrecompiled PROPERTIES AUTOMOC OFF AUTOUIC OFF)
set(UICOMPONENTS_DEFINITIONS QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_DEPRECATED_WARNINGS_SINCE=0x050500)
target_compile_definitions(UIComponentsPrecompiled PRIVATE ${UICOMPONENTS_DEFINITIONS})
uicomponents_warnings(UIComponentsPrecompiled)

function(uicomponents_precompiled)
    foreach(target IN LISTS ARGN)
        target_compile_definitions(${target} PRIVATE ${UICOMPONENTS_DEFINITIONS})
        target_precompile_headers(${target} REUSE_FROM UIComponentsPrecompiled)
    endforeach()
endfunction()
