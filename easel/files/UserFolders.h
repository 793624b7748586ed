// Where the user's files that are not drawings lie, as the freedesktop.org base directory specification
// (version 0.8) places them. None of the folders need exist.
#pragma once

#include <filesystem>

namespace easel::files {

// `$XDG_CONFIG_HOME`, usually `~/.config`.
std::filesystem::path configurationFolder();

// `$XDG_DATA_HOME`, usually `~/.local/share`.
std::filesystem::path dataFolder();

// What should outlive a crash but is nobody's document: `$XDG_STATE_HOME/kestrad`, usually
// `~/.local/state/kestrad`.
std::filesystem::path stateFolder();

} // namespace easel::files
