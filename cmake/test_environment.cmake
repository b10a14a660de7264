# The environment of every test: zone, locale and folders do not come from the machine.
set(test_environment
    TZ=UTC LC_ALL=C.UTF-8 XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-config
    XDG_DATA_HOME=${CMAKE_BINARY_DIR}/test-data
    HORAVEX_TEST_BINARY_DIR=${CMAKE_BINARY_DIR} HORAVEX_TEST_SOURCE_DIR=${CMAKE_SOURCE_DIR})
