# Packages with libraries ask for ldconfig by a trigger, as Debian wants it, and not in scripts, as CPack has it.

foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(folder ${CPACK_TEMPORARY_DIRECTORY}/triggers)
    file(REMOVE_RECURSE ${folder})
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
    if(EXISTS ${folder}/DEBIAN/shlibs)
        file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
        file(WRITE ${folder}/DEBIAN/triggers "activate-noawait ldconfig\n")
        file(CHMOD ${folder}/DEBIAN/triggers PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
        execute_process(COMMAND dpkg-deb --root-owner-group --build ${folder} ${package}
            OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    endif()
    file(REMOVE_RECURSE ${folder})
endforeach()
