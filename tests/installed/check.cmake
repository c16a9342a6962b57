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
# A provider plugin that was built must be found beside the installed library.
set(wanted skin)
file(GLOB office_provider "${BUILD_DIR}/lib/UIComponents/automation/*OfficeProvider*")
if(office_provider)
    list(APPEND wanted office)
endif()
run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK_DIR}/build/installed-check" ${wanted})

# The engine's plugin needs a display, which its own test makes; here with the installed library and plugin.
if(WEBENGINE_TEST)
    # The leak sanitizer, in a build that has it, cannot stop the engine's threads at the end.
    run("${CMAKE_COMMAND}" -E env ASAN_OPTIONS=detect_leaks=0
        "LD_LIBRARY_PATH=${WORK_DIR}/prefix/${LIBDIR}" "${WEBENGINE_TEST}" PageIsPainted)
endif()

# The first program of README.md, from what stands there.
file(READ "${SOURCE_DIR}/../../README.md" readme)
function(write_block language file)
    string(REGEX REPLACE "^.*## A first program" "" section "${readme}")
    string(REGEX MATCH "```${language}\n[^`]*```" block "${section}")
    string(REGEX REPLACE "(^```${language}\n|```$)" "" block "${block}")
    file(WRITE "${WORK_DIR}/first/${file}" "${block}")
endfunction()
write_block(cpp main.cpp)
write_block(cmake CMakeLists.txt)
run("${CMAKE_COMMAND}" -S "${WORK_DIR}/first" -B "${WORK_DIR}/first/build" -G "${GENERATOR}"
    "-DCMAKE_CXX_COMPILER=${CXX}" "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" "-DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix")
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/first/build")
execute_process(COMMAND "${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen timeout 2 "${WORK_DIR}/first/build/first"
    RESULT_VARIABLE result)
if(NOT result EQUAL 124) # it was running until it was stopped
    message(FATAL_ERROR "the first program of README.md ends with ${result}")
endif()

# The project's program by pkg-config, which must find all by the file's own place.
file(GLOB_RECURSE pc_file "${WORK_DIR}/prefix/UIComponents.pc")
get_filename_component(pc_dir "${pc_file}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} "${pc_dir}")
execute_process(COMMAND pkg-config --cflags --libs UIComponents
    OUTPUT_VARIABLE flags RESULT_VARIABLE result OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "pkg-config does not find UIComponents")
endif()
separate_arguments(flags UNIX_COMMAND "${flags} ${CXX_FLAGS}")
run("${CXX}" -std=c++17 -fPIC "${SOURCE_DIR}/main.cpp" -o "${WORK_DIR}/by-pkg-config" ${flags}
    "-Wl,-rpath,${pc_dir}/..")
run("${CMAKE_COMMAND}" -E env QT_QPA_PLATFORM=offscreen "${WORK_DIR}/by-pkg-config")

# All installed headers, in a client that has other uses for the words "signals", "slots" and "emit".
set(includes "${WORK_DIR}/prefix/include/UIComponents")
file(GLOB_RECURSE headers RELATIVE "${includes}" "${includes}/*.h")
list(TRANSFORM headers REPLACE "(.+)" "#include <\\1>\n")
list(JOIN headers "" text)
file(WRITE "${WORK_DIR}/headers.cpp" "${text}")
run("${CXX}" -std=c++17 -fPIC -fsyntax-only -DQT_NO_KEYWORDS "${WORK_DIR}/headers.cpp" ${flags})
