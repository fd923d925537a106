# Installs the build into a fresh prefix, then builds and runs a project that knows nothing but that prefix: by
# find_package, and by pkg-config and the compiler alone.

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

function(run_and_expect expected)
    run(${ARGN})
    if(NOT output MATCHES "${expected}")
        message(FATAL_ERROR "${ARGN} printed: ${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK_FOLDER})
run(${CMAKE_COMMAND} --install ${BUILD_FOLDER} --prefix ${WORK_FOLDER}/prefix)
run(${CMAKE_COMMAND} -DFOLDER=${WORK_FOLDER}/prefix/${DOCUMENTATION_FOLDER}
    -P ${CMAKE_CURRENT_LIST_DIR}/../structure/follow_links.cmake)
run(test -x ${WORK_FOLDER}/prefix/${DOCUMENTATION_FOLDER}/examples/packages/fleet-monitor/bin/heartbeat)
# The installed tool finds its libraries in the prefix.
run_and_expect("^UUID: org.example.storyteller\n" ${WORK_FOLDER}/prefix/bin/zupackage show ${MANIFEST})
run_and_expect("^zupackage ${VERSION}\n$" ${WORK_FOLDER}/prefix/bin/zupackage --version)

run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK_FOLDER}/build -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${COMPILER}
    -DCMAKE_CXX_FLAGS=${COMPILER_FLAGS})
run(${CMAKE_COMMAND} --build ${WORK_FOLDER}/build)
run_and_expect("^org.example.storyteller\n$" ${WORK_FOLDER}/build/consumer ${MANIFEST})

foreach(prefix IN LISTS PREFIX_PATH ITEMS ${WORK_FOLDER}/prefix)
    set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBRARY_FOLDER}/pkgconfig:$ENV{PKG_CONFIG_PATH}")
    set(ENV{LD_LIBRARY_PATH} "${prefix}/${LIBRARY_FOLDER}:$ENV{LD_LIBRARY_PATH}")
endforeach()
foreach(library IN ITEMS zu zupackage zupackage-authoring)
    run_and_expect("^${VERSION}\n$" ${PKG_CONFIG} --modversion ${library})
endforeach()
run(${PKG_CONFIG} --cflags --libs zupackage-authoring)
separate_arguments(library_flags UNIX_COMMAND "${output}")
separate_arguments(compiler_flags UNIX_COMMAND "${COMPILER_FLAGS}")
# -fPIC is what Qt's headers want.
run(${COMPILER} ${compiler_flags} -std=c++17 -fPIC ${CMAKE_CURRENT_LIST_DIR}/main.cpp -o ${WORK_FOLDER}/consumer
    ${library_flags})
run_and_expect("^org.example.storyteller\n$" ${WORK_FOLDER}/consumer ${MANIFEST})
