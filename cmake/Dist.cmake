# dist/x64 and dist/x86: what a user of the component gets. A room says what it ships with
#   install(TARGETS pelorin_dll RUNTIME DESTINATION .)
#   install(DIRECTORY Graphics DESTINATION .)
# and the target "dist" builds the shipped programs and puts everything in place. What else lies there
# (a site database, a log) is the user's and stays.

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(PELORIN_DIST_DIR ${PROJECT_SOURCE_DIR}/dist/x64)
else()
  set(PELORIN_DIST_DIR ${PROJECT_SOURCE_DIR}/dist/x86)
endif()

function(pelorin_dist)
  pelorin_collect_targets(${PROJECT_SOURCE_DIR} targets)
  set(shipped "")
  foreach(target ${targets})
    get_target_property(type ${target} TYPE)
    get_target_property(dir ${target} SOURCE_DIR)
    if(type MATCHES "SHARED_LIBRARY|MODULE_LIBRARY|EXECUTABLE" AND NOT dir MATCHES "/(tests|benches)(/|$)")
      list(APPEND shipped ${target})
    endif()
  endforeach()
  add_custom_target(dist
    COMMAND ${CMAKE_COMMAND} --install ${CMAKE_BINARY_DIR} --prefix ${PELORIN_DIST_DIR} --strip
    COMMENT "Assembling ${PELORIN_DIST_DIR}" VERBATIM)
  add_dependencies(dist picture_strip ${shipped})
endfunction()
