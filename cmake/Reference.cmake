# The target "docs" writes the reference pages by doxygen (Debian's package of that name).
find_program(DOXYGEN doxygen)
if(NOT DOXYGEN)
    message(STATUS "No doxygen: neither reference pages nor their check")
    return()
endif()
get_property(public_headers GLOBAL PROPERTY UICOMPONENTS_PUBLIC_HEADERS)
set(public_header_paths "")
foreach(header IN LISTS public_headers)
    string(APPEND public_header_paths " \\\n    \"${PROJECT_SOURCE_DIR}/${header}\"")
endforeach()
configure_file(docs/Doxyfile.in "${PROJECT_BINARY_DIR}/reference/Doxyfile" @ONLY)
add_custom_target(docs COMMAND "${DOXYGEN}" "${PROJECT_BINARY_DIR}/reference/Doxyfile"
    COMMENT "Writing the reference pages" VERBATIM)
