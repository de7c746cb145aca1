# The Debian package: what "cmake --install --prefix /usr" installs. A machine's own deployment.ini
# stands in /etc/xdg/benevix, so that there is no file of the package that an administrator changes.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME benevix)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Benevix developers <app@benevix.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.benevix.example/)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/strip.cmake)
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
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "ca-certificates, qt6-wayland, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
