# easel_room(<name> [AHEAD <headers>] [OPTIONS <compile options>] [PUBLIC <targets>] [PRIVATE <targets>]): declares a room of Easel, which
# is the folder easel/<name> (a dot in the name is a step down: svg.text lives in svg/text).
#
# Two targets come of it. easel.<name> stands for the headers: who links it may include "easel/<name>/..." and, along
# with it, the headers of the rooms under PUBLIC, since the room's own headers need those. easel.<name>.objects is the
# compiled room; it sees the rooms under PRIVATE beside, and what it leaves out it cannot include. A folder of headers
# alone has no objects. AHEAD names the headers that are read ahead of time (headers_ahead).
function(easel_room name)
  cmake_parse_arguments(PARSE_ARGV 1 room "" "AHEAD" "OPTIONS;PUBLIC;PRIVATE")
  string(REPLACE "." "/" folder "easel/${name}")

  add_library(easel.${name} INTERFACE)
  room_root(easel.${name} "${folder}")
  target_link_libraries(easel.${name} INTERFACE ${room_PUBLIC})

  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/*.cpp")
  if(sources)
    file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/*.h")
    add_library(easel.${name}.objects OBJECT ${sources} ${headers})
    target_link_libraries(easel.${name}.objects PRIVATE easel.${name} ${room_PRIVATE})
    target_compile_options(easel.${name}.objects PRIVATE ${room_OPTIONS})
    compile_together(easel.${name}.objects)
    if(room_AHEAD)
      read_ahead(easel.${name}.objects ${room_AHEAD})
    endif()
  endif()
endfunction()

# easel_library(<name> <objects>...): a library of the program's own, of compiled rooms, that is loaded when it is wanted. It
# has to be of the program's version, so the name of its file carries all of it.
function(easel_library name)
  add_library(${name} SHARED)
  target_link_libraries(${name} PRIVATE kestradhost ${ARGN})
  set_target_properties(${name} PROPERTIES SOVERSION ${PROJECT_VERSION}
                                           INSTALL_RPATH "$ORIGIN/${LIBRARIES_FROM_EASEL_LIBRARIES}")
  install(TARGETS ${name} LIBRARY DESTINATION "${EASEL_LIBRARY_FOLDER}" COMPONENT program NAMELINK_SKIP)
endfunction()
