# What a host needs, in the places of GNUInstallDirs, without a path of the build machine: the folder can be moved.
include(CMakePackageConfigHelpers)
set(OSD_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/osdmenu)

install(TARGETS osdmenu EXPORT osdmenuTargets)
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/osdmenu FILES_MATCHING PATTERN "*.h")
install(DIRECTORY platform DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/osdmenu FILES_MATCHING PATTERN "*_service.h")

install(EXPORT osdmenuTargets NAMESPACE osdmenu:: DESTINATION ${OSD_CMAKE_DIR})
configure_package_config_file(cmake/osdmenuConfig.cmake.in osdmenuConfig.cmake INSTALL_DESTINATION ${OSD_CMAKE_DIR})
write_basic_package_version_file(osdmenuConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/osdmenuConfig.cmake ${PROJECT_BINARY_DIR}/osdmenuConfigVersion.cmake
        DESTINATION ${OSD_CMAKE_DIR})

# The way from the file's own folder back to the prefix, whatever the depth of the library folder.
file(RELATIVE_PATH OSD_PC_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" OSD_PC_TO_PREFIX ${OSD_PC_TO_PREFIX})
configure_file(cmake/osdmenu.pc.in osdmenu.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/osdmenu.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
