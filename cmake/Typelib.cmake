# pelorin_typelib(target IDL thing.idl): compiles a type library and its C++ header from IDL.
#
# Makes ${CMAKE_CURRENT_BINARY_DIR}/thing.tlb and thing.h, and a target that other targets depend on:
#   pelorin_typelib(pelorin_idl IDL Pelorin.idl)
#   target_link_libraries(addin PRIVATE pelorin_idl)   # finds "Pelorin.h", builds after both files
# The tlb's layout belongs to one architecture, so each build makes its own; a resource script embeds it with
#   1 TYPELIB "thing.tlb"
# which windres finds because the target exports its folder (RC files also need pelorin_resource).

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(PELORIN_WIDL_NAME x86_64-w64-mingw32-widl)
else()
  set(PELORIN_WIDL_NAME i686-w64-mingw32-widl)
endif()
find_program(PELORIN_WIDL ${PELORIN_WIDL_NAME} REQUIRED)

# The base interfaces' IDL and the compiled stdole2.tlb come with Wine's packages; mingw-w64's hold neither.
find_path(PELORIN_BASE_IDL oaidl.idl PATHS /usr/include/wine/wine/windows /usr/include/wine/windows
  NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
find_path(PELORIN_STDOLE stdole2.tlb PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows
  NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)

function(pelorin_typelib target)
  cmake_parse_arguments(ARG "" "IDL" "" ${ARGN})
  get_filename_component(base ${ARG_IDL} NAME_WE)
  get_filename_component(idl ${ARG_IDL} ABSOLUTE)
  set(tlb ${CMAKE_CURRENT_BINARY_DIR}/${base}.tlb)
  set(header ${CMAKE_CURRENT_BINARY_DIR}/${base}.h)
  set(search -I ${PELORIN_BASE_IDL} -L ${PELORIN_STDOLE})
  add_custom_command(OUTPUT ${tlb} ${header}
    COMMAND ${PELORIN_WIDL} ${search} -t -o ${tlb} ${idl}
    COMMAND ${PELORIN_WIDL} ${search} -h -o ${header} ${idl}
    DEPENDS ${idl} COMMENT "Type library ${base}.tlb" VERBATIM)
  add_custom_target(${target}_files DEPENDS ${tlb} ${header})
  add_library(${target} INTERFACE)
  add_dependencies(${target} ${target}_files)
  target_include_directories(${target} SYSTEM INTERFACE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()

# pelorin_resource(target thing.rc DEPENDS files...): adds a resource script that embeds the named files.
function(pelorin_resource target script)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  target_sources(${target} PRIVATE ${script})
  set_source_files_properties(${script} PROPERTIES OBJECT_DEPENDS "${ARG_DEPENDS}")
endfunction()
