# What Debian wants in every package, put where CPack has laid them out: copyright and changelog, manual pages
# compressed, and completion where its zsh looks.
cmake_policy(VERSION 3.22)

function(compress file)
    execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
    file(CHMOD ${file}.gz PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
endfunction()

get_filename_component(source_folder ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
file(STRINGS ${source_folder}/LICENSE license)
list(FILTER license INCLUDE REGEX ".")
list(POP_FRONT license)
list(POP_FRONT license copyright)
list(JOIN license "\n " license)
string(REPLACE "Copyright (c) " "" copyright "${copyright}")
# The C locale, whatever the user's: names of days and months are English.
set(ENV{LC_ALL} C)
execute_process(COMMAND date -R OUTPUT_VARIABLE date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

file(GLOB folders ${CPACK_TEMPORARY_DIRECTORY}/*)
foreach(folder IN LISTS folders)
    if(NOT IS_DIRECTORY ${folder}/usr)
        continue()
    endif()
    get_filename_component(package ${folder} NAME)
    set(documentation ${folder}/usr/share/doc/${package})
    file(WRITE ${documentation}/copyright
        "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\n\n"
        "Files: *\nCopyright: ${copyright}\nLicense: Expat\n ${license}\n")
    file(WRITE ${documentation}/changelog.Debian
        "zupackage (${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}) unstable; urgency=medium\n\n"
        "  * Version ${CPACK_PACKAGE_VERSION}; see changelog.gz of the package zupackage.\n\n"
        " -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
    # Its text stands in copyright.
    file(REMOVE ${documentation}/LICENSE)
    if(EXISTS ${documentation}/CHANGELOG.md)
        file(RENAME ${documentation}/CHANGELOG.md ${documentation}/changelog)
        compress(${documentation}/changelog)
        file(READ ${documentation}/README.md readme)
        string(REPLACE "](CHANGELOG.md)" "](changelog.gz)" readme "${readme}")
        string(REPLACE "](LICENSE)" "](copyright)" readme "${readme}")
        file(WRITE ${documentation}/README.md "${readme}")
    endif()
    if(EXISTS ${folder}/usr/share/zsh/site-functions)
        file(RENAME ${folder}/usr/share/zsh/site-functions ${folder}/usr/share/zsh/vendor-completions)
    endif()
    file(GLOB pages ${folder}/usr/share/man/*/*)
    foreach(file IN LISTS pages ITEMS ${documentation}/changelog.Debian)
        compress(${file})
    endforeach()
endforeach()
