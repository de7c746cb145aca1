# Runs during installation: creates the link to the list file and the menu entry.
set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

# On purpose: the program saves a downloaded list as shareddb.dat and loads sharedb.dat.
file(CREATE_LINK sharedb.dat "${folder}/Resources/shareddb.dat" SYMBOLIC)

# The first run expects the entry in a subfolder named after the program. It is installed into
# share/applications below the prefix, which desktops read if the prefix is /usr or /usr/local, and,
# without DESTDIR, into the installing user's applications folder.
string(REGEX REPLACE "([\"`$])" "\\\\\\\\\\1" benevix "${CMAKE_INSTALL_PREFIX}/benevix")
string(REPLACE "%" "%%" benevix "${benevix}")
set(exec "\"${benevix}\"")
set(icon "${CMAKE_INSTALL_PREFIX}/benevix.svg")
set(folders "${folder}/share/applications")
if("$ENV{DESTDIR}" STREQUAL "")
  if(IS_ABSOLUTE "$ENV{XDG_DATA_HOME}")
    list(APPEND folders "$ENV{XDG_DATA_HOME}/applications")
  elseif(IS_ABSOLUTE "$ENV{HOME}")
    list(APPEND folders "$ENV{HOME}/.local/share/applications")
  endif()
endif()
foreach(applications IN LISTS folders)
  message(STATUS "Installing: ${applications}/benevix/benevix.desktop")
  configure_file(${CMAKE_CURRENT_LIST_DIR}/../packaging/benevix.desktop.in
                 "${applications}/benevix/benevix.desktop" @ONLY)
endforeach()
