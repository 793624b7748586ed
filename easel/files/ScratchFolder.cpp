// Temporary folders.
#include "easel/files/ScratchFolder.h"

#include <cstdlib>
#include <exception>

namespace fs = std::filesystem;

namespace easel::files {

Result<ScratchFolder> ScratchFolder::make() {
    std::error_code error;
    const auto folder = fs::temp_directory_path(error);
    auto pattern = (folder / "easel-XXXXXX").string();
    if (error || !::mkdtemp(pattern.data()))
        return tl::unexpected(lastSystemError(folder));
    return ScratchFolder(pattern);
}

ScratchFolder::~ScratchFolder() {
    try {
        if (!path_.empty())
            fs::remove_all(path_);
    } catch (const std::exception&) {
        // What cannot be removed is left to whoever cleans temporary folders.
    }
}

} // namespace easel::files
