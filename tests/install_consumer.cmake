# Installs the build tree into a fresh folder, and builds and runs a program against it, as users of
# the library do. Variables: BUILD_DIR, CONSUMER_DIR, WORK_DIR, MANIFEST, EXPECTED_NAME, and build
# settings that the program must share.

file(REMOVE_RECURSE "${WORK_DIR}")

execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/prefix"
    OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)

execute_process(
    COMMAND "${CMAKE_COMMAND}" -S "${CONSUMER_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}"
        "-DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix;${PREFIX_PATH}"
        "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}"
        "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}"
        "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND "${CMAKE_COMMAND}" --build "${WORK_DIR}/build"
    COMMAND_ERROR_IS_FATAL ANY)

execute_process(
    COMMAND "${WORK_DIR}/build/consumer" "${MANIFEST}"
    OUTPUT_VARIABLE name
    OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
message("The consumer read the name '${name}'.")
if(NOT name STREQUAL EXPECTED_NAME)
    message(FATAL_ERROR "The expected name is '${EXPECTED_NAME}'.")
endif()

# The same with pkg-config.
execute_process(
    COMMAND "${CMAKE_COMMAND}" -E env "PKG_CONFIG_PATH=${WORK_DIR}/prefix/${LIBDIR}/pkgconfig"
        "${PKG_CONFIG}" --cflags --libs zel-packagemodel
    OUTPUT_VARIABLE flags
    OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${CXX_FLAGS} -std=c++17 -fPIC ${CONSUMER_DIR}/main.cpp ${flags}")
execute_process(
    COMMAND "${CXX_COMPILER}" ${flags} "-Wl,-rpath,${WORK_DIR}/prefix/${LIBDIR}"
        -o "${WORK_DIR}/consumer"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND "${WORK_DIR}/consumer" "${MANIFEST}"
    OUTPUT_VARIABLE name
    OUTPUT_STRIP_TRAILING_WHITESPACE
    COMMAND_ERROR_IS_FATAL ANY)
if(NOT name STREQUAL EXPECTED_NAME)
    message(FATAL_ERROR "With pkg-config, the consumer read '${name}'.")
endif()

# The installed program must find the installed data, not those in the build tree.
if(EXISTS "${WORK_DIR}/prefix/bin/zel-package")
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -E env --unset=ZENTRIX_DATA_PATH
            QT_LOGGING_RULES=PackageModel.Package.debug=true
            "${WORK_DIR}/prefix/bin/zel-package" robots
        OUTPUT_VARIABLE robots
        ERROR_VARIABLE log
        COMMAND_ERROR_IS_FATAL ANY)
    if(NOT robots MATCHES "HERON_H1"
            OR NOT log MATCHES "Model file found: ${WORK_DIR}/prefix/share/zentrix/robots/heron-h1")
        message(FATAL_ERROR "The installed robots were not found:\n${robots}${log}")
    endif()
endif()
