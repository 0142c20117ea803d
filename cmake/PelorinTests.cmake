# GoogleTest built from Debian's source package, the same way natively and for Windows, and one way to declare a test.

set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(gtest_disable_pthreads OFF CACHE BOOL "" FORCE)
if(NOT EXISTS /usr/src/googletest/CMakeLists.txt)
  message(FATAL_ERROR "GoogleTest's source is missing: run tools/setup-packages")
endif()
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
foreach(library gtest gmock gmock_main)
  # Nobody waits for the framework itself.
  target_compile_options(${library} PRIVATE -O0)
endforeach()

# Where tests find what is not their own.
find_file(PELORIN_SQLITE_ODBC libsqlite3odbc.so
  PATHS /usr/lib/x86_64-linux-gnu/odbc NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(NOT PELORIN_SQLITE_ODBC)
  message(FATAL_ERROR "SQLite's ODBC driver is missing: run tools/setup-packages")
endif()
configure_file(${PROJECT_SOURCE_DIR}/tests/test_paths.h.in ${CMAKE_BINARY_DIR}/generated/test_paths.h)

# What nearly every test includes is read once for all of them.
add_library(test_headers OBJECT ${PROJECT_SOURCE_DIR}/tests/precompiled.cpp)
target_link_libraries(test_headers PUBLIC pelorin_flags GTest::gmock)
if(WIN32)
  target_precompile_headers(test_headers PRIVATE ${PROJECT_SOURCE_DIR}/tests/windows/precompiled.h)
  # Run a few times and then changed: building the tests is what takes the time.
  target_compile_options(test_headers PRIVATE -O0)
else()
  target_precompile_headers(test_headers PRIVATE ${PROJECT_SOURCE_DIR}/tests/precompiled.h)
endif()

function(pelorin_test_sources target)
  target_include_directories(${target} SYSTEM PRIVATE ${CMAKE_BINARY_DIR}/generated)
  target_precompile_headers(${target} REUSE_FROM test_headers)
  pelorin_unity(${target} 8)
  if(WIN32)
    target_compile_options(${target} PRIVATE -O0)
  endif()
endfunction()

function(pelorin_test_program program)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${program} ${ARG_SOURCES})
  target_link_libraries(${program} PRIVATE pelorin_flags ${ARG_LINKS} GTest::gmock_main)
  set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  pelorin_test_sources(${program})
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
