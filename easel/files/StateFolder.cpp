// The folder of the user's state, as the freedesktop.org base directory specification (version 0.8) places
// it.
#include "easel/files/StateFolder.h"

#include <cstdlib>

namespace fs = std::filesystem;

namespace easel::files {

fs::path stateFolder() {
    // The specification wants relative paths in the variable ignored.
    const char* const state = std::getenv("XDG_STATE_HOME");
    if (state && *state == '/')
        return fs::path(state) / "kestrad";
    const char* const home = std::getenv("HOME");
    return fs::path(home ? home : "/") / ".local" / "state" / "kestrad";
}

} // namespace easel::files
