// Writing over a file where nothing can be put in its place.
#pragma once

#include "easel/files/Result.h"

#include <string_view>

namespace easel::files {

// Whether that error, of `replaceFile`, says that the file's folder takes no new files.
bool isForbiddenFolder(const Error& error);

// Gives a file that is there that content, without making another one. Cut off in the middle it leaves
// neither the old content nor the new one, so the caller keeps the new one somewhere until this is over.
// After an error the old content is put back, as far as that goes.
[[nodiscard]] Result<> overwriteFile(const std::filesystem::path& file, std::string_view content);

} // namespace easel::files
