# The install locations; docs/packaging.md shows the whole tree.
#
# The program looks for its pages, plug-ins and languages beside its executable, so all of them are installed in one
# folder. PATH gets links: the executable resolves them to find its folder.
include(GNUInstallDirs)
set(ZAVEL_PROGRAM_DIR ${CMAKE_INSTALL_LIBDIR}/zavelpos)
set(ZAVEL_LAYER_DIR ${ZAVEL_PROGRAM_DIR}/lib)
set(ZAVEL_PLUGIN_DIR ${ZAVEL_PROGRAM_DIR}/plugins)
set(ZAVEL_LANGUAGE_DIR ${ZAVEL_PROGRAM_DIR}/languages)
set(ZAVEL_PAGE_DIR ${ZAVEL_PROGRAM_DIR}/html)
set(ZAVEL_HELP_DIR ${ZAVEL_PROGRAM_DIR}/help)

# Programs, layers and plug-ins find each other by relative paths, so the tree can be anywhere.
set(CMAKE_INSTALL_RPATH "$ORIGIN")

# install_program(TARGET): installs the executable and a link to it in PATH.
function(install_program target)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/lib")
  install(TARGETS ${target} RUNTIME DESTINATION ${ZAVEL_PROGRAM_DIR})
  file(RELATIVE_PATH way ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_PREFIX}/${ZAVEL_PROGRAM_DIR}/${target})
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
  file(CREATE_LINK ${way} ${CMAKE_BINARY_DIR}/links/${target} SYMBOLIC)
  install(FILES ${CMAKE_BINARY_DIR}/links/${target} DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()

# install_plugin(TARGET): installs a module that the program loads when it starts.
function(install_plugin target)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")
  install(TARGETS ${target} LIBRARY DESTINATION ${ZAVEL_PLUGIN_DIR})
endfunction()
