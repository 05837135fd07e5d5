# SPDX-FileCopyrightText: 2026 Norvane
# SPDX-License-Identifier: MPL-2.0

include(CMakePackageConfigHelpers)

# vkilnjet_add_library(NAME
#     DESCRIPTION TEXT         what it is, in a line
#     INCLUDE_DIR DIR          folder that holds the public headers, as they are included
#     SOURCES FILE...
#     PUBLIC TARGET...         what the public headers need
#     [PRIVATE TARGET...]      what only the implementation needs
#     [QT COMPONENT...]        Qt components that a user of the installed library must find
#     [PACKAGES NAME...]       packages of this project that it must find
#     [COMPONENTS NAME...])    packages that a user may name as components of this one
#
# A shared library with hidden symbols, the alias Norvane::NAME, a header <FOLDER/Version.h>, and its
# own installed packages NAME: for CMake (find_package(NAME CONFIG)) and for pkg-config.
function(vkilnjet_add_library name)
    cmake_parse_arguments(arg "" "INCLUDE_DIR;DESCRIPTION"
        "SOURCES;PUBLIC;PRIVATE;QT;PACKAGES;COMPONENTS" ${ARGN})

    add_library(${name} SHARED ${arg_SOURCES})
    add_library(Norvane::${name} ALIAS ${name})
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS "${arg_INCLUDE_DIR}/*.h")
    string(TOUPPER ${name} upper)
    set(made "${CMAKE_CURRENT_BINARY_DIR}/include")
    file(GLOB folder RELATIVE "${arg_INCLUDE_DIR}" "${arg_INCLUDE_DIR}/*")
    set(LIBRARY_NAME "${name}")
    set(LIBRARY_PREFIX "${upper}")
    set(LIBRARY_FOLDER "${folder}")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/Version.h.in" "${made}/${folder}/Version.h" @ONLY)
    target_sources(${name} PUBLIC
        FILE_SET HEADERS BASE_DIRS "${arg_INCLUDE_DIR}" "${made}"
        FILES ${headers} "${made}/${folder}/Version.h")
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_link_libraries(${name}
        PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE} $<BUILD_INTERFACE:vkilnjet_compiler>)
    set_target_properties(${name} PROPERTIES
        LINKER_LANGUAGE CXX
        DEFINE_SYMBOL ${upper}_LIBRARY
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    # Hidden visibility does not reach the instances of other libraries' templates: std:: is visible
    # by decree of its headers.
    if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT VKILNJET_SANITIZE)
        set(exports "${PROJECT_SOURCE_DIR}/cmake/exports.map")
        target_link_options(${name} PRIVATE "LINKER:--version-script=${exports}")
        set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS "${exports}")
    endif()

    set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${name}")
    install(TARGETS ${name} EXPORT ${name}Targets
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
    install(EXPORT ${name}Targets NAMESPACE Norvane:: DESTINATION "${package_dir}")

    set(PACKAGE_QT_COMPONENTS "${arg_QT}")
    set(PACKAGE_DEPENDENCIES "${arg_PACKAGES}")
    set(PACKAGE_COMPONENTS "${arg_COMPONENTS}")
    set(PACKAGE_NAME "${name}")
    configure_package_config_file(
        "${PROJECT_SOURCE_DIR}/cmake/PackageConfig.cmake.in" "${name}Config.cmake"
        INSTALL_DESTINATION "${package_dir}")
    write_basic_package_version_file("${name}ConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
    install(FILES
        "${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake"
        DESTINATION "${package_dir}")

    # The file finds its prefix from where it lies itself.
    set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
    file(RELATIVE_PATH PC_TO_PREFIX "/${pc_dir}" "/")
    string(REGEX REPLACE "/$" "" PC_TO_PREFIX "${PC_TO_PREFIX}")
    list(TRANSFORM arg_PUBLIC REPLACE "^Qt6::(.+)" "Qt6\\1 >= 6.4" OUTPUT_VARIABLE requires)
    list(TRANSFORM requires REPLACE "^Norvane::" "")
    list(JOIN requires ", " PC_REQUIRES)
    set(PC_DESCRIPTION "${arg_DESCRIPTION}")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/Library.pc.in" "${name}.pc" @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${name}.pc" DESTINATION "${pc_dir}")
endfunction()
