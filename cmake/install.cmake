# "cmake --install" makes a folder in which the programs run: with their plug-in, the data files,
# deployment.ini, the demonstration site and the manual pages.
install(TARGETS benevix benevix-site benevix-demo RUNTIME DESTINATION .)
install(TARGETS benevix_page_viewer LIBRARY DESTINATION plugins)
install(FILES resources/deployment.ini DESTINATION .)
install(DIRECTORY resources/ DESTINATION Resources
  FILES_MATCHING PATTERN "*.dat" PATTERN "*.res" PATTERN "*.html")
install(FILES src/mirror/look/images/benevix.svg DESTINATION .)
install(DIRECTORY site/ DESTINATION site)
install(DIRECTORY packaging/ DESTINATION share/man/man1 FILES_MATCHING PATTERN "*.1")
install(SCRIPT cmake/install_links.cmake)
