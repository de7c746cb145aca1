# Runs when the package is made: leaves out of its programs what Debian's own packages leave out.
file(GLOB_RECURSE programs ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/* ${CPACK_TEMPORARY_DIRECTORY}/*.so)
execute_process(COMMAND strip --strip-unneeded --remove-section=.comment --remove-section=.note
                        ${programs} COMMAND_ERROR_IS_FATAL ANY)
