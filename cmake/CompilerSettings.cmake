# Language level, warnings, sanitizers and output folders, the same for every target.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(EASEL_WARNINGS_AS_ERRORS)
  add_compile_options(-Werror)
endif()
# Contraction of multiply and add differs between compilers and machines; pixels and geometry must not.
add_compile_options(-ffp-contract=off)

if(CMAKE_SYSTEM_PROCESSOR STREQUAL "aarch64")
  # Vectors whose length nobody knows beforehand cannot be kept in the kernels' closures; NEON is always there.
  add_compile_definitions("HWY_DISABLED_TARGETS=(HWY_SVE|HWY_SVE2|HWY_SVE_256|HWY_SVE2_128)")
endif()

if(EASEL_SANITIZE)
  # With coverage in everything, since a fuzzing engine learns from nothing else which inputs lead somewhere new.
  add_compile_options(-fsanitize=address,undefined,fuzzer-no-link -fno-sanitize-recover=undefined
                      -fno-omit-frame-pointer -O1 -gline-tables-only)
  add_link_options(-fsanitize=address,undefined)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  add_link_options(-fuse-ld=lld)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # Without this leniency ccache passes by everything that uses a precompiled header.
  set(launcher "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE_PROGRAM}")
  set(CMAKE_C_COMPILER_LAUNCHER "${launcher}")
  set(CMAKE_CXX_COMPILER_LAUNCHER "${launcher}")
endif()
