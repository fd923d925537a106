# How the project's libraries and programs are compiled. Stands in the framework's folder because the framework builds
# alone.

include(GNUInstallDirs)
include(GenerateExportHeader)
set(ZU_CMAKE_FOLDER ${CMAKE_CURRENT_LIST_DIR})

# A library that is found outside the prefix, the host framework among them, is found there at run time, too.
set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)

# Compiled once, whatever the build. Precompiled headers want the two allowances: see ccache's manual.
find_program(ZU_CCACHE ccache)
if(ZU_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros ${ZU_CCACHE})
endif()

# Within another project, that one's libraries, programs and tests matter: of ours, the libraries are built.
option(ZU_INSTALL "Install what is built" ${PROJECT_IS_TOP_LEVEL})
if(PROJECT_IS_TOP_LEVEL)
    include(CTest)
    set(ZU_TESTS ${BUILD_TESTING})
endif()

option(ZU_WERROR "Treat compiler warnings as errors" OFF)
option(ZU_HEADERS_ALONE "Compile each public header alone" OFF)
option(ZU_ABI "Describe types in the libraries that are ABI, for what compares binary interfaces" OFF)
# No two sources of a target have the same name for different things.
set(ZU_UNITY OFF CACHE STRING "Compile several sources together, those of tests or all (ON)")
set_property(CACHE ZU_UNITY PROPERTY STRINGS OFF TESTS ON)
if(NOT ZU_UNITY MATCHES "^(OFF|TESTS|ON)$")
    message(FATAL_ERROR "ZU_UNITY is OFF, TESTS or ON, not \"${ZU_UNITY}\"")
endif()

# One strictness for every target of ours.
function(zu_compile_options target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
        -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wswitch-enum -Wundef
        $<$<BOOL:${ZU_WERROR}>:-Werror>)
    if(ZU_UNITY STREQUAL "ON")
        zu_compile_together(${target})
    endif()
endfunction()

function(zu_compile_together target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
    # To GCC the included sources are headers, which should have no anonymous namespaces.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endfunction()

# A shared library ${target} with an export header <${folder}/export.hpp> that defines ${macro}, a header of its
# version, and the object library ${target}_objects behind it: its sources are compiled once, and tests of private
# operations link the objects. It is known as zu::${EXPORT_NAME}, to pkg-config as ${NAME}, with what its headers need
# there in REQUIRES.
# ABI: programs link it that are not built with it.
function(zu_add_library target)
    cmake_parse_arguments(arg "ABI" "NAME;DESCRIPTION;EXPORT_NAME;FOLDER;MACRO" "SOURCES;REQUIRES" ${ARGN})

    add_library(${target}_objects OBJECT ${arg_SOURCES})
    zu_compile_options(${target}_objects)
    target_compile_options(${target}_objects PRIVATE $<$<AND:$<BOOL:${ZU_ABI}>,$<BOOL:${arg_ABI}>>:-g2>)
    set(generated ${CMAKE_CURRENT_BINARY_DIR}/generated)
    generate_export_header(${target}_objects BASE_NAME ${target}
        EXPORT_MACRO_NAME ${arg_MACRO}
        EXPORT_FILE_NAME ${generated}/${arg_FOLDER}/export.hpp)
    target_compile_definitions(${target}_objects PRIVATE ${target}_EXPORTS)
    string(REPLACE _EXPORT "" prefix ${arg_MACRO})
    configure_file(${ZU_CMAKE_FOLDER}/version.hpp.in ${generated}/${arg_FOLDER}/version.hpp @ONLY)

    add_library(${target} SHARED)
    add_library(zu::${arg_EXPORT_NAME} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME ${arg_NAME}
        EXPORT_NAME ${arg_EXPORT_NAME}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${ZU_SOVERSION}
        INSTALL_RPATH "$ORIGIN"
        LINK_DEPENDS ${ZU_CMAKE_FOLDER}/exports.map)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_link_libraries(${target} PRIVATE ${target}_objects)
    # Programs start earlier: fewer symbols to look up, sooner found, and fewer parts of a file to map.
    target_link_options(${target} PRIVATE LINKER:-O1,-Bsymbolic-functions LINKER:-z,noseparate-code
        LINKER:--version-script=${ZU_CMAKE_FOLDER}/exports.map)

    foreach(side IN ITEMS ${target} ${target}_objects)
        target_include_directories(${side} PUBLIC
            $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>
            $<BUILD_INTERFACE:${generated}>
            $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    endforeach()

    if(ZU_INSTALL)
        zu_install_library(${target})
    endif()
endfunction()

# To be called by zu_add_library, whose variables it reads.
macro(zu_install_library target)
    install(TARGETS ${target} EXPORT ${PROJECT_NAME}Targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT ${PROJECT_NAME}_runtime NAMELINK_COMPONENT ${PROJECT_NAME}_development
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
    install(DIRECTORY include/ ${generated}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
        COMPONENT ${PROJECT_NAME}_development FILES_MATCHING PATTERN "*.hpp")
    set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH up_to_prefix /${pkgconfig_folder} /)
    list(JOIN arg_REQUIRES ", " requires)
    configure_file(${ZU_CMAKE_FOLDER}/library.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.pc DESTINATION ${pkgconfig_folder}
        COMPONENT ${PROJECT_NAME}_development)
endmacro()

# What find_package(${PROJECT_NAME}) finds: the exported targets, behind a config file that first finds what they need.
function(zu_install_package config_template)
    if(NOT ZU_INSTALL)
        return()
    endif()
    include(CMakePackageConfigHelpers)
    set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/${PROJECT_NAME})
    configure_package_config_file(${config_template}
        ${CMAKE_CURRENT_BINARY_DIR}/${PROJECT_NAME}Config.cmake INSTALL_DESTINATION ${destination})
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
        COMPATIBILITY SameMinorVersion)
    install(EXPORT ${PROJECT_NAME}Targets NAMESPACE zu:: DESTINATION ${destination}
        COMPONENT ${PROJECT_NAME}_development)
    install(FILES
        ${CMAKE_CURRENT_BINARY_DIR}/${PROJECT_NAME}Config.cmake
        ${CMAKE_CURRENT_BINARY_DIR}/${PROJECT_NAME}ConfigVersion.cmake
        DESTINATION ${destination} COMPONENT ${PROJECT_NAME}_development)
endfunction()

# Every public header under include/${folder} of the project, or of the folder ROOT, is the only one, twice, of a source
# of its own; for HEADERS, the file WITH follows.
function(zu_compile_headers_alone library folder)
    cmake_parse_arguments(arg "" "ROOT;WITH" "HEADERS" ${ARGN})
    if(NOT arg_ROOT)
        set(arg_ROOT ${PROJECT_SOURCE_DIR})
    endif()
    file(GLOB_RECURSE headers RELATIVE ${arg_ROOT}/include/${folder} ${arg_ROOT}/include/${folder}/*.hpp)
    foreach(header IN LISTS headers)
        string(REPLACE ".hpp" "" name ${header})
        set(text "#include <${folder}/${header}>\n#include <${folder}/${header}>\n")
        if(name IN_LIST arg_HEADERS)
            string(APPEND text "#include \"${arg_WITH}\"\n")
        endif()
        file(CONFIGURE OUTPUT headers/${name}.cpp CONTENT "${text}")
        list(APPEND sources ${CMAKE_CURRENT_BINARY_DIR}/headers/${name}.cpp)
    endforeach()
    string(MAKE_C_IDENTIFIER ${folder}_headers target)
    add_library(${target} OBJECT ${sources})
    zu_compile_options(${target})
    set_target_properties(${target} PROPERTIES UNITY_BUILD OFF)
    target_link_libraries(${target} PRIVATE ${library})
endfunction()

# How tests are compiled: without optimisation, which takes a third of the time; -fPIC, for one precompiled header.
function(zu_test_compile_options target)
    zu_compile_options(${target})
    target_compile_options(${target} PRIVATE -fPIC $<$<NOT:$<CONFIG:Debug>>:-O0;-g1>)
    if(ZU_UNITY STREQUAL "TESTS")
        zu_compile_together(${target})
    endif()
endfunction()

# A GoogleTest program whose cases CTest lists one by one and runs in a process each. THREADS: it has cases that start
# threads, for ThreadSanitizer.
function(zu_add_tests target)
    cmake_parse_arguments(arg "THREADS" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${target} ${arg_SOURCES})
    zu_test_compile_options(${target})
    target_link_libraries(${target} PRIVATE ${arg_LIBRARIES} GTest::gmock GTest::gtest_main)
    if(NOT TARGET zu_test_headers)
        file(CONFIGURE OUTPUT zu_test_headers.cpp CONTENT "")
        add_library(zu_test_headers OBJECT ${CMAKE_CURRENT_BINARY_DIR}/zu_test_headers.cpp)
        zu_test_compile_options(zu_test_headers)
        target_link_libraries(zu_test_headers PRIVATE GTest::gmock)
        target_precompile_headers(zu_test_headers PRIVATE <gmock/gmock.h> <gtest/gtest.h>)
    endif()
    target_precompile_headers(${target} REUSE_FROM zu_test_headers)
    if(arg_THREADS)
        set(label PROPERTIES LABELS threads)
    endif()
    gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST NO_PRETTY_TYPES NO_PRETTY_VALUES ${label})
endfunction()
