# CPack gives every package with a library scripts that call ldconfig. The package has a trigger for that, which is what
# Debian wants, so that it runs once however many libraries are installed together.
find_program(DPKG_DEB dpkg-deb REQUIRED)
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  set(unpacked "${CPACK_TEMPORARY_DIRECTORY}/unpacked")
  execute_process(COMMAND "${DPKG_DEB}" --raw-extract "${package}" "${unpacked}" COMMAND_ERROR_IS_FATAL ANY)
  if(EXISTS "${unpacked}/DEBIAN/triggers" AND EXISTS "${unpacked}/DEBIAN/postinst")
    file(REMOVE "${unpacked}/DEBIAN/postinst" "${unpacked}/DEBIAN/postrm")
    execute_process(COMMAND "${DPKG_DEB}" --root-owner-group -Zxz --build "${unpacked}" "${package}"
                    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
  endif()
  file(REMOVE_RECURSE "${unpacked}")
endforeach()
