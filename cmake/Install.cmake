# Installation of the library, its headers, the command-line tool and the shipped configuration,
# with an exported CMake package, a pkg-config file and a Debian package.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(NUMBERING_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/Numbering)
set(NUMBERING_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/numbering)

install(TARGETS Numbering EXPORT NumberingTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/numbering DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(EXPORT NumberingTargets NAMESPACE Numbering:: DESTINATION ${NUMBERING_INSTALL_CMAKEDIR}
  COMPONENT development)

configure_package_config_file(cmake/NumberingConfig.cmake.in ${PROJECT_BINARY_DIR}/NumberingConfig.cmake
  INSTALL_DESTINATION ${NUMBERING_INSTALL_CMAKEDIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/NumberingConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/NumberingConfig.cmake ${PROJECT_BINARY_DIR}/NumberingConfigVersion.cmake
  DESTINATION ${NUMBERING_INSTALL_CMAKEDIR} COMPONENT development)

configure_file(cmake/numbering.pc.in ${PROJECT_BINARY_DIR}/numbering.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/numbering.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)

file(GLOB NUMBERING_SHIPPED_CONFIGURATION CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/*.properties)
install(FILES ${NUMBERING_SHIPPED_CONFIGURATION} DESTINATION ${NUMBERING_INSTALL_DATADIR} COMPONENT runtime)

set(CPACK_PACKAGE_NAME libnumbering)
set(CPACK_PACKAGE_VENDOR "libNumbering developers")
set(CPACK_PACKAGE_CONTACT "libNumbering developers <numbering@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libpocofoundation80, libpocoutil80, libstdc++6")
set(CPACK_GENERATOR DEB)
include(CPack)
