# Installs the build tree to a fresh prefix, then configures, builds and runs the project beside this file.
# Called with -DBUILD_DIR, -DSOURCE_DIR, -DWORK_DIR, -DGENERATOR and -DCXX.
file(REMOVE_RECURSE "${WORK_DIR}")
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGN}\n${output}")
    endif()
endfunction()
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/prefix")
run("${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}"
    "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" "-DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/build")
run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK_DIR}/build/installed-check")
