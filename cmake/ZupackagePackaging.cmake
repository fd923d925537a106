# Debian packages of what is installed, a group of components each: ./dev package.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VENDOR "the maintainers of zupackage")
# Each package has a summary of its own, which CPack would put below that of the project.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "the maintainers of zupackage <maintainers@example.org>")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Libraries of the build that other packages of it are linked with: those are named below.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR} ${CMAKE_BINARY_DIR}/framework)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian_documentation.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/debian_triggers.cmake)

# The package of that name with those components; DEPENDS: beside what its programs and libraries are linked with;
# SCRIPTS: what Debian runs when it comes and goes. There is no semicolon in the texts: it would end them.
macro(zupackage_add_package name)
    cmake_parse_arguments(arg "" "SECTION;SUMMARY;DESCRIPTION;DEPENDS" "COMPONENTS;SCRIPTS" ${ARGN})
    if(arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "${name}: ${arg_UNPARSED_ARGUMENTS}")
    endif()
    string(TOUPPER ${name} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${arg_SECTION})
    set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${arg_DEPENDS}")
    set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA "${arg_SCRIPTS}")
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${arg_SUMMARY}\n${arg_DESCRIPTION}")
    set(${name}_components ${arg_COMPONENTS})
    list(APPEND packages ${name})
endmacro()

set(scripts ${CMAKE_CURRENT_LIST_DIR}/debian)
zupackage_add_package(libzu0 SECTION libs COMPONENTS zu_runtime
    SUMMARY "logger and runtime type system, shared library"
    DESCRIPTION "The host framework of libzupackage: a logger, and values whose types are\n\
not known when a program is written.")
zupackage_add_package(libzupackage0 SECTION libs COMPONENTS zupackage_runtime
    DEPENDS "libzu0 (= ${version})"
    SUMMARY "package descriptions of a robot middleware, shared libraries"
    DESCRIPTION "Reads, edits and writes the manifests of application packages for robots. A\n\
second library is for tools that check and edit them.")
zupackage_add_package(libzupackage-dev SECTION libdevel COMPONENTS zu_development zupackage_development
    DEPENDS "libzu0 (= ${version}), libzupackage0 (= ${version}), libboost-dev, qtbase5-dev"
    SUMMARY "package descriptions of a robot middleware, development files"
    DESCRIPTION "Headers, and what CMake and pkg-config know of libzupackage, its library for\n\
tools and its host framework libzu.")
zupackage_add_package(zupackage SECTION utils COMPONENTS zupackage_tool zupackage_documentation
    DEPENDS "libzu0 (= ${version}), libzupackage0 (= ${version}), xml-core"
    SCRIPTS ${scripts}/postinst ${scripts}/prerm ${scripts}/postrm
    SUMMARY "shows, checks and edits package descriptions of a robot middleware"
    DESCRIPTION "A command line program for the manifests of application packages, with its\n\
manual pages, its guide, the schemas of manifests, and completion for bash, zsh\n\
and fish.")

include(CPack)
foreach(package IN LISTS packages)
    cpack_add_component_group(${package})
    foreach(component IN LISTS ${package}_components)
        cpack_add_component(${component} GROUP ${package})
    endforeach()
endforeach()
