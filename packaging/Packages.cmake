# The Debian packages, one for each component of the installation. `./package` makes them.
set(CPACK_GENERATOR DEB)
set(CPACK_OUTPUT_FILE_PREFIX "${CMAKE_SOURCE_DIR}/build/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL program library plugin development)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The developers of Easel <easel@example.org>")
# Each package has a summary of its own, in front of which the project's would otherwise be put.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/CompressDocuments.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/DropLibraryScripts.cmake")

# Libraries of Debian that the files need are found by dpkg-shlibdeps, which has to be told where ours lies.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_BINARY_DIR}/bin")

set(library "libkestradhost${HOST_ABI}")
set(version "(= ${PROJECT_VERSION})")

# debian_package(<component> <name> <section> <summary> <description> [<package it needs>...]): its terms and changes go
# into its own folder of documents.
macro(debian_package component name section summary description)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}\n${description}")
  set(needs ${ARGN})
  list(JOIN needs ", " CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS)
  foreach(document copyright changelog)
    configure_file("${CMAKE_CURRENT_LIST_DIR}/${document}.in" "${CMAKE_BINARY_DIR}/packaging/${document}" @ONLY)
    install(FILES "${CMAKE_BINARY_DIR}/packaging/${document}" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}"
            COMPONENT ${component})
  endforeach()
endmacro()

debian_package(
  program easel graphics "drawing program with a gradient tool"
  "Easel opens SVG drawings and puts gradients on their shapes: click a shape
and it has a gradient, drag across it and the gradient follows the line. What
is saved is an ordinary SVG file in which only what was changed is different.
.
Drawings are written as PNG, PDF and SVG pictures too, in the window and on
the command line."
  "${library} ${version}" "kestrad-gradient ${version}")
# The window has no text without a font, and not every desktop has an X server.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-translations-l10n, qt6-wayland")

debian_package(
  library ${library} libs "host of drawing tools that are plug-ins"
  "The host interface of the drawing application Kestrad, as a library: objects
of a drawing, gradients, dialogs, and files with resources. Plug-ins with
drawing tools are linked with it.")

debian_package(
  plugin kestrad-gradient graphics "gradient tool for drawing programs"
  "A plug-in with a tool for linear and radial gradients: a click fills a shape,
a drag turns its gradient, and an editor has a ramp with color stops and
templates. Any program with the host interface of Kestrad can load it; Easel
is one."
  "${library} (>= ${PROJECT_VERSION})")

debian_package(
  development libkestradhost-dev libdevel "headers for plug-ins with drawing tools, and their hosts"
  "The declarations of Kestrad's host interface, with a CMake package. They are
all it takes to write a plug-in, or another program that loads plug-ins."
  "${library} ${version}")

# What the package of a library tells other packages, and the loader.
file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/packaging/shlibs"
     CONTENT "libkestradhost ${HOST_ABI} ${library} (>= ${PROJECT_VERSION})\n")
file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/packaging/triggers" CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${CMAKE_BINARY_DIR}/packaging/shlibs;${CMAKE_BINARY_DIR}/packaging/triggers")

include(CPack)
