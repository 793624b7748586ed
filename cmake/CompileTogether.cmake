# Ways to compile the same headers less often. Nothing of it changes what a program does.

option(EASEL_TOGETHER "Compile the files of a room in groups and the headers of tests ahead; \
off, every file has to compile alone" ON)

# compile_together(<target>): several sources of a target become one unit, so that what they include is read once and
# what they all instantiate is compiled once. Kernels stay alone, since they include themselves.
function(compile_together target)
  if(EASEL_TOGETHER)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "Kernels\\.cpp$")
    set_source_files_properties(${sources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
endfunction()

# headers_ahead(<name> [OPTIONS <compile options>] [LINK <targets>] HEADERS <headers>): reads headers ahead of time, for
# targets that name this one in read_ahead. They have to be compiled in the same way.
function(headers_ahead name)
  if(EASEL_TOGETHER)
    cmake_parse_arguments(PARSE_ARGV 1 ahead "" "" "OPTIONS;LINK;HEADERS")
    file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/${name}.cpp" CONTENT "")
    add_library(${name} OBJECT "${CMAKE_BINARY_DIR}/${name}.cpp")
    target_compile_options(${name} PRIVATE ${ahead_OPTIONS})
    target_link_libraries(${name} PRIVATE ${ahead_LINK})
    target_precompile_headers(${name} PRIVATE ${ahead_HEADERS})
  endif()
endfunction()

function(read_ahead target name)
  if(EASEL_TOGETHER)
    target_precompile_headers(${target} REUSE_FROM ${name})
  endif()
endfunction()
