# Installs once for the system with DESTDIR and once for a user as a folder that runs where it
# stands; each time the first run creates the shortcut.
set(home ${BUILD}/tests/install/home)
set(prefix "${BUILD}/tests/install/the program")
set(stage ${BUILD}/tests/install/stage)
file(REMOVE_RECURSE ${home} ${prefix} ${stage})
file(MAKE_DIRECTORY ${home}/Desktop)

function(run)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=XDG_DATA_HOME --unset=XDG_CONFIG_HOME
                          HOME=${home} XDG_DATA_DIRS=/nowhere:${stage}/usr/share ${ARGN}
                  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(expect_files folder)
  file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE ${folder} ${folder}/*)
  list(TRANSFORM files REPLACE "^usr/lib/[^/]*-linux-gnu[^/]*/" "usr/lib/")
  list(SORT files)
  if(NOT files STREQUAL "${ARGN}")
    message(SEND_ERROR "installed are ${files}, not ${ARGN}")
  endif()
endfunction()

# The shortcut that the first run makes of the menu entry.
function(expect_shortcut program)
  run(${FIRST_RUN})
  set(shortcut ${home}/Desktop/benevix.desktop)
  file(READ ${shortcut} text)
  string(FIND "${text}" "\nExec=${program}\n" place)
  if(place EQUAL -1)
    message(SEND_ERROR "the shortcut starts another program: ${text}")
  endif()
  check_with(desktop-file-validate ${shortcut})
endfunction()

# Where the checker is installed.
function(check_with program)
  find_program(${program}_path ${program})
  if(${program}_path)
    execute_process(COMMAND ${${program}_path} ${ARGN} OUTPUT_VARIABLE said ERROR_VARIABLE said
                    RESULT_VARIABLE result)
    # The first is said of every domain reserved for examples; the others ask for a tag that the
    # checker of our oldest system does not know.
    string(REGEX REPLACE
           "(^|\n)I: [^\n]*(cid-maybe-not-rdns|developer-name-tag|developer-info)[^\n]*" ""
           said "${said}")
    if(NOT result EQUAL 0 OR said MATCHES "(^|\n)[EWIP]: |warning|hint")
      message(SEND_ERROR "${program}: ${said}")
    endif()
  endif()
endfunction()

run(DESTDIR=${stage} ${CMAKE_COMMAND} --install ${BUILD} --prefix /usr)
expect_files(${stage}
  usr/bin/benevix
  usr/lib/benevix/plugins/benevix_page_viewer.so
  usr/share/applications/benevix.desktop
  usr/share/benevix/Resources/help.html
  usr/share/benevix/Resources/qhelp.html
  usr/share/benevix/Resources/sharedb.dat
  usr/share/benevix/Resources/shareddb.dat
  usr/share/benevix/Resources/wlist.res
  usr/share/benevix/deployment.ini
  usr/share/doc/benevix/changelog.gz
  usr/share/doc/benevix/copyright
  usr/share/icons/hicolor/scalable/apps/benevix.svg
  usr/share/man/man1/benevix.1.gz
  usr/share/metainfo/example.benevix.benevix.metainfo.xml)
expect_files(${home})
expect_shortcut("benevix")
check_with(appstreamcli validate --no-net --pedantic
           ${stage}/usr/share/metainfo/example.benevix.benevix.metainfo.xml)

run(--unset=DESTDIR ${CMAKE_COMMAND} --install ${BUILD} --component portable --prefix ${prefix})
foreach(file benevix-demo benevix.svg man/man1/benevix-site.1 plugins/benevix_page_viewer.so
             site/index.html)
  if(NOT EXISTS ${prefix}/${file})
    message(SEND_ERROR "${file} is missing")
  endif()
endforeach()
file(READ_SYMLINK ${prefix}/Resources/shareddb.dat target)
if(NOT target STREQUAL "sharedb.dat")
  message(SEND_ERROR "the link points to ${target}")
endif()
expect_files(${home} .local/share/applications/benevix/benevix.desktop Desktop/benevix.desktop)
expect_shortcut("\"${prefix}/benevix\"")
