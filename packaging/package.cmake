# The packages: one for Debian, an archive elsewhere.

set(CPACK_PACKAGE_NAME loftwing)
set(CPACK_PACKAGE_VENDOR "Loftwing developers")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "full-size rib drawings from airfoil files")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)

if(UNIX AND NOT APPLE)
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION non-free/graphics)
  # No host is ours: in this one nobody has an address.
  set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Loftwing developers <loftwing@loftwing.invalid>")
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Loftwing turns an airfoil coordinate file into a full-size rib drawing that
can be laid on the balsa and cut along: with sheeting, leading and trailing
edge stock, spars, holes, levelling heel or foam template. It prints at 1:1
over several sheets, exports PDF, SVG and DXF, and makes whole sets of ribs for
tapered wings, in a window or from the command line.")
  # The libraries are found in the program; these it looks for while it runs.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, libqt6svg6, qt6-translations-l10n")
  set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, xdg-utils")

  # What only a Debian package has.
  set(entry ${CMAKE_CURRENT_BINARY_DIR}/changelog.Debian)
  add_custom_command(OUTPUT ${entry}.gz
    COMMAND awk -v version=${PROJECT_VERSION} -v release=${CPACK_DEBIAN_PACKAGE_RELEASE}
      -v maintainer=${CPACK_DEBIAN_PACKAGE_MAINTAINER} -v made=${entry}
      -f ${CMAKE_CURRENT_SOURCE_DIR}/debian_changelog.awk ${CMAKE_SOURCE_DIR}/CHANGELOG.md
    COMMAND ${LOFTWING_GZIP} -9nf ${entry}
    DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md debian_changelog.awk VERBATIM)
  add_custom_target(loftwing_debian_changelog ALL DEPENDS ${entry}.gz)
  install(FILES ${entry}.gz copyright DESTINATION ${CMAKE_INSTALL_DOCDIR}
    COMPONENT debian EXCLUDE_FROM_ALL)
  set(CPACK_INSTALL_CMAKE_PROJECTS
    ${CMAKE_BINARY_DIR} loftwing ALL /
    ${CMAKE_BINARY_DIR} loftwing debian /)
else()
  set(CPACK_GENERATOR ZIP)
endif()

include(CPack)
