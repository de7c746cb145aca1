# "cmake --install BUILD --prefix PREFIX" follows the usual layout: the program alone, nothing outside
# the prefix. "--component portable" makes PREFIX a folder that runs where it stands instead, with
# the demonstration and its site, which rewrites the deployment.ini of its own folder.
set(made ${PROJECT_BINARY_DIR}/install)
set(manual packaging/benevix.1)
set(changelog packaging/changelog)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${manual} ${changelog} LICENSE)

file(MAKE_DIRECTORY ${made})
# On purpose: the program saves a downloaded list as shareddb.dat and loads sharedb.dat.
file(CREATE_LINK sharedb.dat ${made}/shareddb.dat SYMBOLIC)
set(data resources/help.html resources/qhelp.html resources/sharedb.dat resources/wlist.res
         ${made}/shareddb.dat)

# As the manual's readers and Debian expect them, the same bytes for the same text.
foreach(document ${manual} ${changelog})
  get_filename_component(name ${document} NAME)
  execute_process(COMMAND gzip --best --no-name --stdout ${PROJECT_SOURCE_DIR}/${document}
                  OUTPUT_FILE ${made}/${name}.gz COMMAND_ERROR_IS_FATAL ANY)
endforeach()

file(READ LICENSE license)
string(REGEX REPLACE ".*Copyright \\(c\\) ([^\n]*)\n.*" "\\1" holder "${license}")
string(REGEX REPLACE ".*Copyright[^\n]*\n\n(.*)\n$" "\n\\1" license "${license}")
string(REPLACE "\n" "\n " license "${license}")
string(REPLACE "\n \n" "\n .\n" license "${license}")
configure_file(packaging/copyright.in ${made}/copyright @ONLY)

install(TARGETS benevix RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS benevix_page_viewer LIBRARY DESTINATION ${BENEVIX_PLUGIN_DESTINATION})
install(FILES ${data} DESTINATION ${CMAKE_INSTALL_DATADIR}/benevix/Resources)
install(FILES resources/deployment.ini DESTINATION ${CMAKE_INSTALL_DATADIR}/benevix)
install(FILES packaging/benevix.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES src/mirror/look/images/benevix.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES packaging/example.benevix.benevix.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${made}/benevix.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${made}/changelog.gz ${made}/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})

macro(install_portable)
  install(${ARGN} COMPONENT portable EXCLUDE_FROM_ALL)
endmacro()
install_portable(TARGETS benevix benevix-site benevix-demo RUNTIME DESTINATION .)
install_portable(TARGETS benevix_page_viewer LIBRARY DESTINATION plugins)
install_portable(FILES ${data} DESTINATION Resources)
install_portable(FILES resources/deployment.ini src/mirror/look/images/benevix.svg DESTINATION .)
install_portable(DIRECTORY site/ DESTINATION site)
install_portable(FILES packaging/benevix.1 packaging/benevix-demo.1 packaging/benevix-site.1
                 DESTINATION man/man1)
install_portable(SCRIPT cmake/menu_entry.cmake)
