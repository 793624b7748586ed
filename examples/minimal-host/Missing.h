// What stands in for the operations that no click without the Option key leads to.
#pragma once

/// Says which operation was called that this host lacks, and ends the program with status 3. The arguments
/// tell where the call stands, unless they are given.
[[noreturn]] void Missing(char const* operation = __builtin_FUNCTION(), char const* file = __builtin_FILE(),
                          int line = __builtin_LINE());
