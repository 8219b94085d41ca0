# Run by CPack on what goes into the package: takes out what no running program reads.

file(GLOB programs "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/*")
find_program(STRIP_PROGRAM strip REQUIRED)
foreach(program IN LISTS programs)
  execute_process(COMMAND "${STRIP_PROGRAM}" --remove-section=.comment --remove-section=.note "${program}"
                          COMMAND_ERROR_IS_FATAL ANY)
endforeach()
