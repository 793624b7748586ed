// Asks the system where the program is. The way from there to the other folders is the build's knowledge.
#include "easel/files/ProgramFolders.h"

#include <system_error>

namespace easel::files {

namespace fs = std::filesystem;

namespace {

fs::path firstThere(const fs::path& built, const fs::path& installed) {
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path inPrefix = (folder / installed).lexically_normal();
    return !fs::exists(folder / built, error) && fs::exists(inPrefix, error) ? inPrefix : folder / built;
}

} // namespace

fs::path pluginFile(const std::string& module) {
    return firstThere(fs::path("plugins") / module, fs::path(EASEL_PLUGINS_FROM_PROGRAM) / module);
}

fs::path ownLibrary(const std::string& name) {
    return firstThere(name, fs::path(EASEL_LIBRARIES_FROM_PROGRAM) / name);
}

fs::path sharedFile(const fs::path& place) {
    return firstThere("share" / place, EASEL_SHARE_FROM_PROGRAM / place);
}

} // namespace easel::files
