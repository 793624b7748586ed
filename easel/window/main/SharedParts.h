// What all windows have in common: one of each for the program.
#pragma once

#include "easel/window/canvas/OpenCanvases.h"
#include "easel/window/main/RecentFiles.h"
#include "easel/window/main/ToolChoice.h"
#include "easel/window/waiting/Interaction.h"

#include <string>
#include <utility>

namespace easel::window {

struct SharedParts {
    explicit SharedParts(std::string programVersion) : version(std::move(programVersion)) {}

    const std::string version;
    Interaction interaction;
    OpenCanvases canvases;
    RecentFiles recentFiles;
    ToolChoice tools{interaction};
};

} // namespace easel::window
