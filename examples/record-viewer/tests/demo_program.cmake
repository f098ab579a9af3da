# Runs PROGRAM into FOLDER and compares what it wrote with the files in DEMO.
file(REMOVE_RECURSE ${FOLDER})
execute_process(COMMAND ${PROGRAM} ${FOLDER} COMMAND_ERROR_IS_FATAL ANY)
foreach(name line-fault.cfg line-fault.dat)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${FOLDER}/${name} ${DEMO}/${name} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
