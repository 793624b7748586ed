# Debian wants manual pages and changelogs compressed.
file(GLOB_RECURSE documents "${CPACK_TEMPORARY_DIRECTORY}/easel*.1" "${CPACK_TEMPORARY_DIRECTORY}/changelog")
foreach(document IN LISTS documents)
  execute_process(COMMAND gzip -9 --no-name --force "${document}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
