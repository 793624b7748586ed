# Where `cmake --install` puts things: the usual folders, and those of our own below them.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Modules that any host of the interface may load, and libraries that only easel does.
set(PLUGIN_FOLDER "${CMAKE_INSTALL_LIBDIR}/kestrad/plugins")
set(EASEL_LIBRARY_FOLDER "${CMAKE_INSTALL_LIBDIR}/easel")
# Headers are included as "host/...".
set(HOST_HEADER_FOLDER "${CMAKE_INSTALL_INCLUDEDIR}/kestrad")
set(HOST_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/KestradHost")
set(EASEL_ZSH_FOLDER "${CMAKE_INSTALL_DATADIR}/zsh/site-functions" CACHE STRING "Where zsh looks for completions")

# The program's name for desktops and software catalogues, which is a domain backwards: example.org belongs to nobody.
set(EASEL_ID "org.example.easel")

# The way from one installed folder to another, for what finds its parts from where it lies.
file(RELATIVE_PATH LIBRARIES_FROM_PROGRAM "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
file(RELATIVE_PATH EASEL_LIBRARIES_FROM_PROGRAM "/${CMAKE_INSTALL_BINDIR}" "/${EASEL_LIBRARY_FOLDER}")
file(RELATIVE_PATH PLUGINS_FROM_PROGRAM "/${CMAKE_INSTALL_BINDIR}" "/${PLUGIN_FOLDER}")
file(RELATIVE_PATH SHARE_FROM_PROGRAM "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_DATADIR}")
file(RELATIVE_PATH LIBRARIES_FROM_PLUGIN "/${PLUGIN_FOLDER}" "/${CMAKE_INSTALL_LIBDIR}")
file(RELATIVE_PATH LIBRARIES_FROM_EASEL_LIBRARIES "/${EASEL_LIBRARY_FOLDER}" "/${CMAKE_INSTALL_LIBDIR}")
