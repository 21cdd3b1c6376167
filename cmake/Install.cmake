# Installation in three components: the library (runtime), what a program needs to build against
# it (development: headers, CMake package, pkg-config file) and the command-line tool with the
# shipped configuration (tool, installed by tools/numbering/). Every file is placed relative to
# the prefix, so an installed tree can be moved as a whole.
include(CMakePackageConfigHelpers)

set(NUMBERING_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/Numbering)

# The include directory comes from the target's INSTALL_INTERFACE alone: an INCLUDES DESTINATION
# here would list it a second time.
install(TARGETS Numbering EXPORT NumberingTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(DIRECTORY include/numbering ${NUMBERING_GENERATED_INCLUDE_DIR}/numbering
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(EXPORT NumberingTargets NAMESPACE Numbering:: DESTINATION ${NUMBERING_INSTALL_CMAKEDIR}
  COMPONENT development)

configure_package_config_file(cmake/NumberingConfig.cmake.in ${PROJECT_BINARY_DIR}/NumberingConfig.cmake
  INSTALL_DESTINATION ${NUMBERING_INSTALL_CMAKEDIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/NumberingConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/NumberingConfig.cmake ${PROJECT_BINARY_DIR}/NumberingConfigVersion.cmake
  DESTINATION ${NUMBERING_INSTALL_CMAKEDIR} COMPONENT development)

# The pkg-config file finds the prefix from its own place (${pcfiledir} up to the prefix), except
# under /usr, where it names /usr: pkg-config then recognises the system directories and leaves
# out their -I and -L. The prefix is known only at install time (cpack installs under /usr).
file(RELATIVE_PATH NUMBERING_PC_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" NUMBERING_PC_TO_PREFIX "${NUMBERING_PC_TO_PREFIX}")
set(NUMBERING_PC_PREFIX "\${pcfiledir}/${NUMBERING_PC_TO_PREFIX}")
configure_file(cmake/numbering.pc.in ${PROJECT_BINARY_DIR}/numbering.pc @ONLY)
set(NUMBERING_PC_PREFIX /usr)
configure_file(cmake/numbering.pc.in ${PROJECT_BINARY_DIR}/usr/numbering.pc @ONLY)
install(CODE "
  set(numbering_pc \"${PROJECT_BINARY_DIR}/numbering.pc\")
  if(CMAKE_INSTALL_PREFIX STREQUAL \"/usr\")
    set(numbering_pc \"${PROJECT_BINARY_DIR}/usr/numbering.pc\")
  endif()
  file(INSTALL \${numbering_pc} DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig\")"
  COMPONENT development)

# The shipped configuration, with the sample of numbers that `numbering diff` converts by default.
file(GLOB NUMBERING_SHIPPED_CONFIGURATION CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/*.properties)
install(FILES ${NUMBERING_SHIPPED_CONFIGURATION} ${PROJECT_SOURCE_DIR}/data/sample_numbers.txt
  DESTINATION ${CMAKE_INSTALL_DATADIR}/numbering COMPONENT tool)

install(FILES LICENSE NOTICE CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documentation)

include(cmake/DebianPackages.cmake)
