set(run ${BUILD}/tests/demo/run)
file(REMOVE_RECURSE ${run})
execute_process(COMMAND ${CMAKE_COMMAND} -E env XDG_DATA_HOME=${run}/settings/data
                        ${CMAKE_COMMAND} --install ${BUILD} --component portable --prefix ${run}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY
                        ${run}/benevix-demo
                OUTPUT_VARIABLE output COMMAND_ECHO STDOUT RESULT_VARIABLE result)
message("${output}")
if(NOT result EQUAL 0)
  message(FATAL_ERROR "the demonstration ended with ${result}")
endif()
foreach(text "Transaction ID: " "Payment: \\$209.70 - BVX Fee: \\$ 4. - CC Fee: \\$5.7" "6-history.png")
  if(NOT output MATCHES "${text}")
    message(FATAL_ERROR "the output lacks: ${text}")
  endif()
endforeach()
if(NOT EXISTS ${run}/pictures/6-history.png)
  message(FATAL_ERROR "a picture is missing")
endif()
