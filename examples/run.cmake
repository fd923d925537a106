# Runs an example and compares what it prints with the file beside it.

execute_process(COMMAND ${PROGRAM} ${ARGUMENT} RESULT_VARIABLE result OUTPUT_VARIABLE output)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}")
endif()
file(READ ${EXPECTED} expected)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "${PROGRAM} printed:\n${output}\ninstead of:\n${expected}")
endif()
