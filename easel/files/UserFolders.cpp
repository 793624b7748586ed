#include "easel/files/UserFolders.h"

#include <cstdlib>

namespace fs = std::filesystem;

namespace easel::files {

namespace {

// The specification wants relative paths in the variable ignored.
fs::path named(const char* variable, const char* belowHome) {
    const char* const folder = std::getenv(variable);
    if (folder && *folder == '/')
        return folder;
    const char* const home = std::getenv("HOME");
    return fs::path(home ? home : "/") / belowHome;
}

} // namespace

fs::path configurationFolder() {
    return named("XDG_CONFIG_HOME", ".config");
}

fs::path dataFolder() {
    return named("XDG_DATA_HOME", ".local/share");
}

fs::path stateFolder() {
    return named("XDG_STATE_HOME", ".local/state") / "kestrad";
}

} // namespace easel::files
