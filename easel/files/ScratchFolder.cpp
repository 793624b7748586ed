// Temporary folders.
#include "easel/files/ScratchFolder.h"

#include <cstdlib>

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
    std::error_code ignored;
    if (!path_.empty())
        fs::remove_all(path_, ignored);
}

} // namespace easel::files
