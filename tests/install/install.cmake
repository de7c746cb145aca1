# Installs once for the system with DESTDIR and once for a user; each time the first run creates the
# shortcut.
set(home ${BUILD}/tests/install/home)
set(prefix "${BUILD}/tests/install/the program")
set(stage ${BUILD}/tests/install/stage)
file(REMOVE_RECURSE ${home} ${prefix} ${stage})
file(MAKE_DIRECTORY ${home}/Desktop)

function(expect exists)
  foreach(file IN LISTS ARGN)
    if(EXISTS ${file} AND NOT exists)
      message(SEND_ERROR "${file} exists")
    elseif(exists AND NOT EXISTS ${file})
      message(SEND_ERROR "${file} is missing")
    endif()
  endforeach()
endfunction()

function(run)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=XDG_DATA_HOME --unset=XDG_CONFIG_HOME
                          HOME=${home} XDG_DATA_DIRS=/nowhere:${stage}/usr/share ${ARGN}
                  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(entry applications/benevix/benevix.desktop)
set(shortcut ${home}/Desktop/benevix.desktop)

run(DESTDIR=${stage} ${CMAKE_COMMAND} --install ${BUILD} --prefix /usr)
expect(TRUE ${stage}/usr/share/${entry} ${stage}/usr/benevix)
expect(FALSE ${home}/.local)
run(${FIRST_RUN})
file(READ ${shortcut} text)
if(NOT text MATCHES "\nExec=\"/usr/benevix\"\n")
  message(SEND_ERROR "the shortcut starts another program: ${text}")
endif()

run(--unset=DESTDIR ${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
expect(TRUE ${home}/.local/share/${entry} ${prefix}/share/${entry} ${prefix}/benevix.svg
       ${prefix}/share/man/man1/benevix-site.1)
file(READ_SYMLINK ${prefix}/Resources/shareddb.dat target)
if(NOT target STREQUAL "sharedb.dat")
  message(SEND_ERROR "the link points to ${target}")
endif()
run(${FIRST_RUN})
file(READ ${shortcut} text)
if(NOT text MATCHES "\nExec=\"${prefix}/benevix\"\n")
  message(SEND_ERROR "the shortcut starts another program: ${text}")
endif()
