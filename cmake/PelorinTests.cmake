# GoogleTest built from Debian's source package, the same way natively and for Windows, and one way to declare a test.

set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_disable_pthreads OFF CACHE BOOL "" FORCE)
if(NOT EXISTS /usr/src/googletest/CMakeLists.txt)
  message(FATAL_ERROR "GoogleTest's source is missing: run tools/setup-packages")
endif()
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)

function(pelorin_test_program program)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${program} ${ARG_SOURCES})
  target_link_libraries(${program} PRIVATE pelorin_flags ${ARG_LINKS} GTest::gmock_main)
  set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
endfunction()

# pelorin_test(room SOURCES ... LINKS ...): native program tests/test_<room>. Does nothing in a Windows build.
function(pelorin_test name)
  if(WIN32)
    return()
  endif()
  pelorin_test_program(test_${name} ${ARGN})
  add_test(NAME ${name} COMMAND test_${name})
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

# pelorin_windows_test(name SOURCES ... LINKS ...): Windows program tests/wintest_<name>, run under Wine by ./test.
# Does nothing in a native build.
function(pelorin_windows_test name)
  if(NOT WIN32)
    return()
  endif()
  pelorin_test_program(wintest_${name} ${ARGN})
endfunction()
