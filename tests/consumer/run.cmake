# Installs the build into a fresh prefix, then builds and runs a project that knows nothing but that prefix.

# As an environment variable, because a list does not survive on a command line.
string(REPLACE ";" ":" prefix_path "${WORK_FOLDER}/prefix;${PREFIX_PATH}")
set(ENV{CMAKE_PREFIX_PATH} "${prefix_path}")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed: ${ARGN}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK_FOLDER})
run(${CMAKE_COMMAND} --install ${BUILD_FOLDER} --prefix ${WORK_FOLDER}/prefix)
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK_FOLDER}/build -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_CXX_FLAGS=${COMPILER_FLAGS})
run(${CMAKE_COMMAND} --build ${WORK_FOLDER}/build)

run(${WORK_FOLDER}/build/consumer ${MANIFEST})
if(NOT output STREQUAL "org.example.storyteller\n")
    message(FATAL_ERROR "the consumer printed: ${output}")
endif()
# The installed tool finds its libraries in the prefix.
run(${WORK_FOLDER}/prefix/bin/zupackage show ${MANIFEST})
if(NOT output MATCHES "^UUID: org.example.storyteller\n")
    message(FATAL_ERROR "the tool printed: ${output}")
endif()
