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
if(UICOMPONENTS_COVERAGE)
    # Without the branches that the compiler adds to each call that could throw: what is counted is written.
    set(UICOMPONENTS_COUNTED -fno-exceptions -fno-threadsafe-statics)
endif()
target_compile_options(UIComponentsPrecompiled PRIVATE ${UICOMPONENTS_COUNTED})

function(uicomponents_precompiled)
    foreach(target IN LISTS ARGN)
        target_compile_options(${target} PRIVATE ${UICOMPONENTS_COUNTED})
        target_compile_definitions(${target} PRIVATE ${UICOMPONENTS_DEFINITIONS})
        target_precompile_headers(${target} REUSE_FROM UIComponentsPrecompiled)
    endforeach()
endfunction()
