# What `cmake --install` puts where, and how other projects find it: find_package(lxpm) and pkg-config lxpm.

include(CMakePackageConfigHelpers)

install(TARGETS lxpm lxpcore EXPORT lxpm LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY include/ core/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")

set(lxpm_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/lxpm)
install(EXPORT lxpm FILE lxpm-targets.cmake NAMESPACE lxpm:: DESTINATION ${lxpm_package_dir})
configure_package_config_file(cmake/lxpm-config.cmake.in ${PROJECT_BINARY_DIR}/lxpm-config.cmake
    INSTALL_DESTINATION ${lxpm_package_dir} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/lxpm-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/lxpm-config.cmake ${PROJECT_BINARY_DIR}/lxpm-config-version.cmake
    DESTINATION ${lxpm_package_dir})

# The installed pkg-config file finds its prefix from where it stands, so that the tree can be moved.
file(RELATIVE_PATH lxpm_prefix_from_pkgconfig
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
configure_file(cmake/lxpm.pc.in ${PROJECT_BINARY_DIR}/lxpm.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/lxpm.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
