# The Debian package: only the component "package", with paths relative to /. It contains only the
# program: the demonstration rewrites the deployment.ini in its folder, and the site and the player
# are for server operators and developers, who have the sources.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME benevix)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Benevix developers <app@benevix.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.benevix.example/)
set(CPACK_INSTALL_CMAKE_PROJECTS "${PROJECT_BINARY_DIR};benevix;package;/")
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "plan and pay charitable donations")
set(CPACK_PACKAGE_DESCRIPTION 
"Benevix is for people who give to charity. You type a budget, pick
organizations from a list that is grouped by country and give each an amount,
while fees and balance stay right to the cent. Payments open in the program's
own page viewer, and a history keeps every session.

Each user has their own data files, made from the installed ones at the first
start.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The SVG plug-in is loaded at run time, so that shlibdeps does not find it.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6svg6)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/conffiles)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)

# An install() rule for the package only.
macro(package_install)
  install(${ARGN} COMPONENT package EXCLUDE_FROM_ALL)
endmacro()
package_install(TARGETS benevix RUNTIME DESTINATION usr/bin)
# Qt's plug-in folder, where every Qt program looks.
package_install(TARGETS benevix_page_viewer
  LIBRARY DESTINATION usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/qt6/plugins)
package_install(FILES resources/deployment.ini DESTINATION etc/benevix)
package_install(FILES resources/help.html resources/qhelp.html resources/sharedb.dat
                      resources/wlist.res DESTINATION usr/share/benevix/Resources)
package_install(FILES src/mirror/look/images/benevix.svg
  DESTINATION usr/share/icons/hicolor/scalable/apps)
package_install(FILES packaging/example.benevix.benevix.metainfo.xml
  DESTINATION usr/share/metainfo)
# Links and generated files.
set(generated ${PROJECT_BINARY_DIR}/package)
configure_file(cmake/package_files.cmake.in package_files.cmake @ONLY)
package_install(SCRIPT ${PROJECT_BINARY_DIR}/package_files.cmake)
package_install(DIRECTORY ${generated}/ DESTINATION .)
