# lumitra_add_test(<name> SOURCES <files...> LIBS <targets...> [TIMEOUT <s>])
#
# One Qt Test executable per unit, registered with CTest. Every test runs headless
# and gets its own data folder, so the settings file it writes never touches the
# user's real one and tests cannot see each other's files. The cloud service's
# address is a closed loopback port unless a test starts its own service, so no
# window's update check ever reaches out.
function(lumitra_add_test name)
  cmake_parse_arguments(T "" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
  if(NOT T_TIMEOUT)
    set(T_TIMEOUT 120)
  endif()
  add_executable(${name} ${T_SOURCES})
  target_link_libraries(${name} PRIVATE Qt5::Test ${T_LIBS})
  target_compile_definitions(${name} PRIVATE
    LUMITRA_TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
    LUMITRA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  add_test(NAME ${name} COMMAND ${name})
  set(home "${CMAKE_BINARY_DIR}/test-home/${name}")
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${T_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_DATA_HOME=${home}/data;XDG_CONFIG_HOME=${home}/config;HOME=${home};LUMITRA_CLOUD_URL=http://127.0.0.1:9")
endfunction()
