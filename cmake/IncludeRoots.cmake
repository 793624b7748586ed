# What a target may include. Nothing sees the whole tree: every top folder that others use, and every room of Easel, has
# an include root of its own in the build tree, and a target sees the roots that it asks for and no others. An include of
# a room that was not declared is an error of the compiler.

# include_root(<target> <scope> <folder>): lets a target include "<folder>/...", sub-folders too.
function(include_root target scope folder)
  set(root "${CMAKE_BINARY_DIR}/include/${folder}")
  if(NOT EXISTS "${root}/${folder}")
    file(MAKE_DIRECTORY "${root}")
    file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${folder}" "${root}/${folder}" SYMBOLIC)
  endif()
  target_include_directories(${target} ${scope} "$<BUILD_INTERFACE:${root}>")
endfunction()

# room_root(<target> <folder>): lets whoever links a target include the headers of one folder as "<folder>/...". The root
# holds a link to each header rather than to the folder, so that a room does not show the rooms in its sub-folders. Kernels
# are linked too: they include themselves, once for each instruction set.
function(room_root target folder)
  string(REPLACE "/" "." name "${folder}")
  set(root "${CMAKE_BINARY_DIR}/include/${name}")
  file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/*.h"
       "${CMAKE_SOURCE_DIR}/${folder}/*Kernels.cpp")
  file(REMOVE_RECURSE "${root}")
  file(MAKE_DIRECTORY "${root}/${folder}")
  foreach(header IN LISTS headers)
    get_filename_component(file "${header}" NAME)
    file(CREATE_LINK "${header}" "${root}/${folder}/${file}" SYMBOLIC)
  endforeach()
  target_include_directories(${target} INTERFACE "${root}")
endfunction()
