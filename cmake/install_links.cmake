# Runs at the installation. The list file's second name, and the menu entry.
set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

# A downloaded list is written under this name; through the link it becomes the one that is loaded.
file(CREATE_LINK sharedb.dat "${folder}/Resources/shareddb.dat" SYMBOLIC)

# The entry stands in a folder named after the program, where its first run looks for it. It goes to
# share/applications below the prefix, which a desktop reads when the prefix is one of the system's,
# and to the applications folder of whoever installs, unless another root is being filled.
string(REGEX REPLACE "([\"`$])" "\\\\\\\\\\1" benevix "${CMAKE_INSTALL_PREFIX}/benevix")
string(REPLACE "%" "%%" benevix "${benevix}")
set(exec "\"${benevix}\"")
set(icon "${CMAKE_INSTALL_PREFIX}/benevix.svg")
set(places "${folder}/share/applications")
if("$ENV{DESTDIR}" STREQUAL "")
  if(IS_ABSOLUTE "$ENV{XDG_DATA_HOME}")
    list(APPEND places "$ENV{XDG_DATA_HOME}/applications")
  elseif(IS_ABSOLUTE "$ENV{HOME}")
    list(APPEND places "$ENV{HOME}/.local/share/applications")
  endif()
endif()
foreach(place IN LISTS places)
  message(STATUS "Installing: ${place}/benevix/benevix.desktop")
  configure_file(${CMAKE_CURRENT_LIST_DIR}/../packaging/benevix.desktop.in
                 "${place}/benevix/benevix.desktop" @ONLY)
endforeach()
