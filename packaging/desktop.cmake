# The files by which a desktop and its shells know the program.

# No host is ours: the name begins with a domain that nobody can own.
set(metainfo local.loftwing.loftwing.metainfo.xml)
configure_file(metainfo.xml.in ${metainfo} @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES loftwing.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES loftwing-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
  RENAME loftwing.xml)

# From the program's own tables and picture.
set(made ${CMAKE_CURRENT_BINARY_DIR}/made)
find_program(LOFTWING_GZIP gzip REQUIRED)
add_custom_command(OUTPUT ${made}/loftwing.1 ${made}/loftwing.1.gz ${made}/loftwing.bash
    ${made}/loftwing.ico
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${made}
  # What the toolkit keeps at its end would count as a leak.
  COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0 $<TARGET_FILE:install_files> ${made}
  COMMAND ${LOFTWING_GZIP} -9nk ${made}/loftwing.1
  DEPENDS install_files VERBATIM)
add_custom_target(loftwing_install_files ALL DEPENDS ${made}/loftwing.1.gz)
install(FILES ${made}/loftwing.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${made}/loftwing.bash
  DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME loftwing)
install(DIRECTORY ${made}/icons DESTINATION ${CMAKE_INSTALL_DATADIR})
