# Build rules that every room shares: language level, warnings, sanitizers and one way to declare a library.

option(PELORIN_TESTS "Build the tests" ON)
option(PELORIN_BENCH "Build the benchmarks" OFF)
option(PELORIN_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(PELORIN_UNITY "Compile several sources of a room as one" ON)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(PELORIN_CCACHE ccache)
if(PELORIN_CCACHE)
  set(CMAKE_C_COMPILER_LAUNCHER ${PELORIN_CCACHE})
  set(CMAKE_CXX_COMPILER_LAUNCHER ${PELORIN_CCACHE})
endif()

add_library(pelorin_flags INTERFACE)
target_include_directories(pelorin_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(pelorin_flags INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wextra-semi -Wimplicit-fallthrough)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(pelorin_flags INTERFACE
    -Wduplicated-cond -Wlogical-op
    # GCC 12 warns of overlapping copies inside std::string's own operator+ when it optimises.
    -Wno-restrict
    # In a unity build a file's own types are no longer those of the main file.
    $<$<BOOL:${PELORIN_UNITY}>:-Wno-subobject-linkage>)
endif()
if(PELORIN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
  # Line numbers are what a report needs.
  string(REPLACE "-g" "-g1" CMAKE_CXX_FLAGS_DEBUG "${CMAKE_CXX_FLAGS_DEBUG}")
  string(REPLACE "-g" "-g1" CMAKE_C_FLAGS_DEBUG "${CMAKE_C_FLAGS_DEBUG}")
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_link_options(-fuse-ld=lld)
  endif()
endif()
if(WIN32)
  target_compile_definitions(pelorin_flags INTERFACE
    UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0700)
  add_link_options(-static)
endif()

# Compiles the sources of a target together, at most so many in one piece (0: all). What every file includes is then
# read once; `./test --lint` compiles each file alone, so that each keeps including what it uses.
function(pelorin_unity target batch)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${PELORIN_UNITY} UNITY_BUILD_BATCH_SIZE ${batch})
endfunction()

# pelorin_library(name SOURCES a.cpp b.cpp LINKS other_rooms...)
# The link list is the room's list of allowed rooms; tests/house checks the includes against it.
function(pelorin_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC pelorin_flags ${ARG_LINKS})
  if(WIN32)
    pelorin_unity(${name} 0)
  else()
    # Who changes one file waits for its piece only.
    pelorin_unity(${name} 10)
  endif()
endfunction()
