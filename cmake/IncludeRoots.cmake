# include_root(<target> <scope> <folder>): lets a target include "<folder>/..." and nothing else of the tree.
#
# Each top folder gets an include root of its own in the build tree that holds one link to it. The plug-in can thus be
# given host/ without seeing easel/, and the application host/ and easel/ without seeing the plug-in.
function(include_root target scope folder)
  set(root "${CMAKE_BINARY_DIR}/include/${folder}")
  if(NOT EXISTS "${root}/${folder}")
    file(MAKE_DIRECTORY "${root}")
    file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${folder}" "${root}/${folder}" SYMBOLIC)
  endif()
  target_include_directories(${target} ${scope} "${root}")
endfunction()
