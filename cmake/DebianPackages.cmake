# Debian packages, one per installation component (cd build && cpack -G DEB):
#   libnumbering2     the shared library, named after its SONAME;
#   libnumbering-dev  headers, the .so link, the CMake package and the pkg-config file;
#   numbering         the command-line tool, its manual page and the shipped configuration.
# The packages install under /usr; the library goes to the multiarch directory chosen in the
# top-level CMakeLists.txt.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libnumbering${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libnumbering-dev)
set(CPACK_DEBIAN_TOOL_PACKAGE_NAME numbering)

# Each package carries the Debian copyright file and changelog in /usr/share/doc/<package>/. They
# are left out of a plain `cmake --install` (EXCLUDE_FROM_ALL), which puts LICENSE and NOTICE in
# the documentation directory instead.
set(NUMBERING_DEBIAN_CHANGELOG ${PROJECT_BINARY_DIR}/changelog.Debian.gz)
add_custom_command(OUTPUT ${NUMBERING_DEBIAN_CHANGELOG}
  COMMAND gzip -9n -c ${PROJECT_SOURCE_DIR}/packaging/debian/changelog > ${NUMBERING_DEBIAN_CHANGELOG}
  DEPENDS ${PROJECT_SOURCE_DIR}/packaging/debian/changelog VERBATIM)
add_custom_target(numbering_debian_changelog ALL DEPENDS ${NUMBERING_DEBIAN_CHANGELOG})
foreach(component IN ITEMS runtime development tool)
  string(TOUPPER ${component} upper)
  install(FILES packaging/debian/copyright ${NUMBERING_DEBIAN_CHANGELOG}
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
    COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()
# The library package's symbols file, from what the built library exports.
set(NUMBERING_DEBIAN_SYMBOLS ${PROJECT_BINARY_DIR}/debian/symbols)
add_custom_command(OUTPUT ${NUMBERING_DEBIAN_SYMBOLS}
  COMMAND ${PROJECT_SOURCE_DIR}/packaging/debian/symbols.sh $<TARGET_FILE:Numbering> $<TARGET_SONAME_FILE_NAME:Numbering>
          ${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} ${CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME} ${PROJECT_VERSION}
          ${NUMBERING_DEBIAN_SYMBOLS}
  DEPENDS Numbering ${PROJECT_SOURCE_DIR}/packaging/debian/symbols.sh VERBATIM)
add_custom_target(numbering_debian_symbols ALL DEPENDS ${NUMBERING_DEBIAN_SYMBOLS})
foreach(component IN ITEMS runtime tool)
  string(TOUPPER ${component} upper)
  install(FILES packaging/debian/${component}.lintian-overrides
    DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides RENAME ${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
    COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME libnumbering)
set(CPACK_PACKAGE_VENDOR "libNumbering developers")
set(CPACK_PACKAGE_CONTACT "libNumbering developers <developers@libnumbering.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# The install runs with the prefix /usr under DESTDIR, so that the install rules see /usr.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX ${CPACK_PACKAGING_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development tool)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SOURCE libnumbering)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# dpkg-shlibdeps runs in the staging directory of each package: the tool's finds the library in the
# runtime package's one. The tool's dependency on the runtime package comes from its component dependency.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ../runtime/usr/${CMAKE_INSTALL_LIBDIR})
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
# A shlibs file for the package that holds the shared library: libNumbering <major> libnumbering<major> (>= version).
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# Each package's description begins with its own synopsis line: no common summary in front of it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(NUMBERING_DEBIAN_ABOUT
  "libNumbering converts telephone numbers for the telephony processes of a
private telephone exchange: typed or received numbers into the canonical
international form, laid out with per-country display masks; canonical
numbers into the digits the exchange dials, with the outside-line prefix
where it is needed; caller line identities with their origin; and the
compact GSM form. Country behaviour comes from property files and from
country numbering plans.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/triggers
  ${NUMBERING_DEBIAN_SYMBOLS})
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "telephone number conversions for private exchanges
${NUMBERING_DEBIAN_ABOUT}

This package holds the shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS libpoco-dev)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "telephone number conversions for private exchanges - development files
${NUMBERING_DEBIAN_ABOUT}

This package holds the headers, the CMake package (find_package(Numbering))
and the pkg-config file (numbering.pc).")

set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_COMPONENT_TOOL_DEPENDS runtime)
set(CPACK_COMPONENT_TOOL_DESCRIPTION "telephone number conversions for private exchanges - command-line tool
${NUMBERING_DEBIAN_ABOUT}

This package holds the numbering command, which runs the conversions on
numbers given as arguments or read from standard input, and the shipped
default configuration in /usr/share/numbering.")

set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian/multiarch.cmake)

include(CPack)
