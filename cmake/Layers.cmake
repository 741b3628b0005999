# add_layer(NAME USES targets...): one layer as a shared library that links only the given targets. It contains every
# .cpp file below the layer's folder; a .ui file is beside its class.
function(add_layer name)
  cmake_parse_arguments(ARG "" "" "USES" ${ARGN})
  set(folder ${CMAKE_CURRENT_SOURCE_DIR}/${name})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.cpp ${folder}/*.ui)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} SHARED ${sources})
  # A .ui header of another folder is included by its full path, like a class.
  set_target_properties(${name} PROPERTIES
    OUTPUT_NAME zavel-${name}
    AUTOUIC_SEARCH_PATHS ${PROJECT_SOURCE_DIR}/src)
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_USES} PRIVATE zavel_flags)
  target_link_options(${name} PRIVATE -Wl,--no-undefined)
  install(TARGETS ${name} LIBRARY DESTINATION ${ZAVEL_LAYER_DIR})
endfunction()
