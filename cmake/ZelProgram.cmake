# How the example programs are installed.

# zel_install_program(target [TEXTS files...]): the program target goes to a folder of its own, together with its help
# and licence texts and a link to the theme, all of which it looks for beside itself; it is started as zel-<target>, a
# link in the folder of the programs, behind which the program finds its own folder again. The man page
# data/zel-<target>.1 beside the calling CMakeLists.txt goes along.
function(zel_install_program target)
  cmake_parse_arguments(PROGRAM "" "" "TEXTS" ${ARGN})
  set(home ${CMAKE_INSTALL_LIBDIR}/ZelCommonView/${target})
  set(full_home ${CMAKE_INSTALL_FULL_LIBDIR}/ZelCommonView/${target})

  # The library is found from the program's own folder, wherever the whole copy is moved.
  file(RELATIVE_PATH libraries ${full_home} ${CMAKE_INSTALL_FULL_LIBDIR})
  string(REGEX REPLACE "/$" "" libraries ${libraries})
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
  install(TARGETS ${target} RUNTIME DESTINATION ${home} COMPONENT tools)
  install(FILES ${PROGRAM_TEXTS} DESTINATION ${home} COMPONENT tools)
  install(
    FILES ${CMAKE_CURRENT_SOURCE_DIR}/data/zel-${target}.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
    COMPONENT tools)

  set(links ${CMAKE_CURRENT_BINARY_DIR}/install-links)
  file(MAKE_DIRECTORY ${links})
  file(RELATIVE_PATH theme ${full_home} ${CMAKE_INSTALL_FULL_DATADIR}/ZelCommonView/Themes)
  file(CREATE_LINK ${theme} ${links}/Themes SYMBOLIC)
  install(FILES ${links}/Themes DESTINATION ${home} COMPONENT tools)
  file(RELATIVE_PATH program ${CMAKE_INSTALL_FULL_BINDIR} ${full_home}/${target})
  file(CREATE_LINK ${program} ${links}/zel-${target} SYMBOLIC)
  install(FILES ${links}/zel-${target} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
endfunction()
