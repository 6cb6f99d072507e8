# What `cmake --install` and CPack put out: the archive, the headers, and the two descriptions by
# which others find them, the CMake package and qel.pc. What they name is found from where they
# stand, so that all of it may be moved as one; only folders that CMAKE_INSTALL_LIBDIR and its kin
# give as absolute paths stay where they are.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS qel EXPORT qelTargets INCLUDES DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(DIRECTORY include/qel DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    FILES_MATCHING PATTERN "*.h")

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/qel")
install(EXPORT qelTargets NAMESPACE qel:: DESTINATION "${package_folder}")
configure_package_config_file(cmake/qelConfig.cmake.in qelConfig.cmake
    INSTALL_DESTINATION "${package_folder}" NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(qelConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/qelConfig.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/qelConfigVersion.cmake"
    DESTINATION "${package_folder}")

# qel.pc stands in a folder of the archive's, which leads to the headers where neither is absolute.
set(pc_includedir "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" AND NOT IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    file(RELATIVE_PATH pc_includedir
        "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
    set(pc_includedir "\${pcfiledir}/${pc_includedir}")
endif()
list(JOIN frameworks " " pc_frameworks)
configure_file(cmake/qel.pc.in qel.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/qel.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# `./run package` makes an archive of what is installed.
if(PROJECT_IS_TOP_LEVEL)
    set(CPACK_GENERATOR TGZ)
    set(CPACK_PACKAGE_FILE_NAME
        "qel-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}")
    set(CPACK_SOURCE_IGNORE_FILES /build/ /\\\\.git)
    include(CPack)
endif()
