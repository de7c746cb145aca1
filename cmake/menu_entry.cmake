# Runs when a folder is installed that runs where it stands: puts an entry into the installing user's
# menu, which no package manager will do, in the subfolder in which the first run looks for it. With
# DESTDIR the folder is not installed for this user.
if("$ENV{DESTDIR}" STREQUAL "")
  if(IS_ABSOLUTE "$ENV{XDG_DATA_HOME}")
    set(data "$ENV{XDG_DATA_HOME}")
  else()
    set(data "$ENV{HOME}/.local/share")
  endif()
  set(file "${data}/applications/benevix/benevix.desktop")
  message(STATUS "Installing: ${file}")
  string(REGEX REPLACE "([\"`$])" "\\\\\\\\\\1" program "${CMAKE_INSTALL_PREFIX}/benevix")
  string(REPLACE "%" "%%" program "${program}")
  file(READ ${CMAKE_CURRENT_LIST_DIR}/../packaging/benevix.desktop entry)
  string(REPLACE "\nExec=benevix\n" "\nExec=\"${program}\"\n" entry "${entry}")
  string(REPLACE "\nIcon=benevix\n" "\nIcon=${CMAKE_INSTALL_PREFIX}/benevix.svg\n" entry "${entry}")
  file(WRITE "${file}" "${entry}")
endif()
