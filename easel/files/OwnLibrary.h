// Libraries of the program's own that are loaded when what is in them is wanted.
#pragma once

#include "easel/files/Result.h"

#include <string>

namespace easel::files {

// The address of what a library exports, which stays loaded as long as the program runs; the error names the
// library's file. The name is that of the file, see ownLibrary.
Result<void*> loadedFrom(const std::string& library, const char* symbol);

} // namespace easel::files
