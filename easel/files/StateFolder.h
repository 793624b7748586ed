// Where the program keeps what should outlive a crash but is nobody's document.
#pragma once

#include <filesystem>

namespace easel::files {

// `$XDG_STATE_HOME/kestrad`, usually `~/.local/state/kestrad`. It need not exist.
std::filesystem::path stateFolder();

} // namespace easel::files
