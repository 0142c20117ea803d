# The embedded engine of the site database: SQLite's single source file, fetched by tools/fetch-sqlite.

set(PELORIN_SQLITE_DIR ${PROJECT_SOURCE_DIR}/.cache/sqlite)
if(NOT EXISTS ${PELORIN_SQLITE_DIR}/sqlite3.c)
  message(FATAL_ERROR "SQLite's source is missing: run tools/fetch-sqlite")
endif()

add_library(sqlite STATIC ${PELORIN_SQLITE_DIR}/sqlite3.c)
target_include_directories(sqlite SYSTEM PUBLIC ${PELORIN_SQLITE_DIR})
# Strings in double quotes are an error (DQS=0), as they are on the server with quoted identifiers on.
target_compile_definitions(sqlite PRIVATE
  SQLITE_THREADSAFE=1 SQLITE_DQS=0 SQLITE_OMIT_LOAD_EXTENSION SQLITE_OMIT_DEPRECATED
  SQLITE_OMIT_SHARED_CACHE SQLITE_LIKE_DOESNT_MATCH_BLOBS SQLITE_DEFAULT_FOREIGN_KEYS=1)
target_compile_options(sqlite PRIVATE -w)
if(PELORIN_SANITIZE)
  # Bounds and lifetimes across the interface matter here; the engine's own arithmetic does not.
  # Inlining in one huge file costs the compiler much and the tests nothing.
  target_compile_options(sqlite PRIVATE -O1 -fno-inline -fno-sanitize=undefined)
elseif(WIN32)
  # The reference host waits for its rows, not for the engine.
  target_compile_options(sqlite PRIVATE -O1)
endif()
if(NOT WIN32)
  target_link_libraries(sqlite PUBLIC m)
endif()
