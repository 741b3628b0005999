# add_layer(NAME USES targets...): one floor of the house, a shared library that sees only what it uses.
function(add_layer name)
  cmake_parse_arguments(ARG "" "" "USES" ${ARGN})
  add_library(${name} SHARED)
  set_target_properties(${name} PROPERTIES
    OUTPUT_NAME zavel-${name}
    AUTOUIC_SEARCH_PATHS "${ZAVEL_FORM_FOLDERS}")
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_USES} PRIVATE zavel_flags)
  target_link_options(${name} PRIVATE -Wl,--no-undefined)
  install(TARGETS ${name} LIBRARY DESTINATION ${ZAVEL_LAYER_DIR})
endfunction()

# add_family(LAYER Class...): the classes of this folder, each a header and, where there is one, a source file.
function(add_family layer)
  foreach(class IN LISTS ARGN)
    set(base ${CMAKE_CURRENT_SOURCE_DIR}/${class})
    if(EXISTS ${base}.h)
      target_sources(${layer} PRIVATE ${base}.h)
    endif()
    if(EXISTS ${base}.cpp)
      target_sources(${layer} PRIVATE ${base}.cpp)
    elseif(NOT EXISTS ${base}.h)
      message(FATAL_ERROR "${base} has neither a header nor a source file")
    endif()
  endforeach()
endfunction()

# watch_classes(): moc and uic run anew when a file listed beside the layers changes, but the classes are listed in the
# folders below: without this a new class would stay without its meta-object until some older header is touched.
function(watch_classes)
  foreach(layer kor app pos zavel)
    get_target_property(sources ${layer} SOURCES)
    list(APPEND all_sources ${sources})
  endforeach()
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/all_sources.cmake CONTENT "# ${all_sources}\n")
  include(${CMAKE_BINARY_DIR}/all_sources.cmake)
endfunction()
