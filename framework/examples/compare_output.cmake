# Fails unless PROGRAM succeeds and writes to standard output exactly what the file EXPECTED holds.
execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
if(DEFINED ENV{ZU_UPDATE_GOLDEN})
    file(WRITE ${EXPECTED} "${output}")
endif()
file(READ ${EXPECTED} expected)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "the output is\n${output}\nand not\n${expected}")
endif()
