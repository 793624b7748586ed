# Ways to compile the same headers less often. Nothing of it changes what a program does.

option(EASEL_TOGETHER "Compile the files of a room in groups and the headers of tests ahead; \
off, every file has to compile alone" ON)

# compile_together(<target>): several sources of a target become one unit, so that what they include is read once and
# what they all instantiate is compiled once. Kernels stay alone, since they include themselves.
function(compile_together target)
  if(EASEL_TOGETHER)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "Kernels\\.cpp$")
    set_source_files_properties(${sources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  endif()
endfunction()

# tests_together(<target>): a test program reads the headers of GoogleTest ahead of time, once for all programs. How fast
# a test's own code runs matters to nobody, so it is compiled for being compiled fast.
function(tests_together target)
  # Headers read ahead fit only what is compiled in the same way, and some of the libraries want threads.
  set(options -O1 -fPIE -pthread)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # At -O1, GCC 12 takes the joining of strings for writing past their end.
    list(APPEND options -Wno-array-bounds -Wno-stringop-overflow)
  endif()
  target_compile_options(${target} PRIVATE ${options})
  if(EASEL_TOGETHER)
    if(NOT TARGET test_headers)
      file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/test_headers.cpp" CONTENT "")
      add_library(test_headers OBJECT "${CMAKE_BINARY_DIR}/test_headers.cpp")
      set_target_properties(test_headers PROPERTIES POSITION_INDEPENDENT_CODE OFF)
      target_compile_options(test_headers PRIVATE ${options})
      target_link_libraries(test_headers PRIVATE GTest::gtest GTest::gmock)
      target_precompile_headers(test_headers PRIVATE <algorithm> <cmath> <filesystem> <functional> <gmock/gmock.h>
                                <gtest/gtest.h> <random> <string> <vector>)
    endif()
    target_precompile_headers(${target} REUSE_FROM test_headers)
  endif()
endfunction()
