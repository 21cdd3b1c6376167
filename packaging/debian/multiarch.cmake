# Run by cpack after it has built the packages (CPACK_POST_BUILD_SCRIPTS): CPack cannot write the
# Multi-Arch field, so the library packages are unpacked, given "Multi-Arch: same" (the files of
# two architectures never collide) and packed again.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  get_filename_component(name ${package} NAME)
  if(NOT name MATCHES "^libnumbering")
    continue()
  endif()
  set(tree ${package}.tree)
  file(REMOVE_RECURSE ${tree})
  execute_process(COMMAND dpkg-deb --raw-extract ${package} ${tree} COMMAND_ERROR_IS_FATAL ANY)
  file(READ ${tree}/DEBIAN/control control)
  string(REGEX REPLACE "(^|\n)(Architecture: [^\n]*\n)" "\\1\\2Multi-Arch: same\n" control "${control}")
  file(WRITE ${tree}/DEBIAN/control "${control}")
  execute_process(COMMAND dpkg-deb --root-owner-group --build ${tree} ${package} OUTPUT_QUIET
    COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE_RECURSE ${tree})
endforeach()
