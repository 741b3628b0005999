# add_qt_test(NAME LABEL USES layers...): one test program from NAME.cpp, run offscreen.
# Label: unit, db, gui, golden, architecture or e2e.
function(add_qt_test name label)
  cmake_parse_arguments(ARG "" "TIMEOUT" "USES;SOURCES" ${ARGN})
  add_executable(${name} ${name}.cpp ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_USES} Qt5::Test zavel_flags)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  # Sanitized code takes several times as long.
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    math(EXPR ARG_TIMEOUT "${ARG_TIMEOUT} * 10")
  endif()
  set_tests_properties(${name} PROPERTIES
    LABELS ${label} TIMEOUT ${ARG_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;ZAVEL_SOURCE_DIR=${PROJECT_SOURCE_DIR}")
endfunction()
