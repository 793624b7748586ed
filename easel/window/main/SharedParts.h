// What all windows have in common: one of each for the program.
#pragma once

#include "easel/drawing/GradientCommands.h"
#include "easel/window/canvas/OpenCanvases.h"
#include "easel/window/keeping/JournalWriter.h"
#include "easel/window/main/RecentFiles.h"
#include "easel/window/main/SessionMemory.h"
#include "easel/window/main/ToolChoice.h"
#include "easel/window/waiting/Interaction.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

namespace easel::runtime {
class Process;
}

namespace easel::window {

struct SharedParts {
    // The process outlives the parts.
    SharedParts(std::string programVersion, runtime::Process& hostProcess)
        : version(std::move(programVersion)), process(hostProcess) {}

    const std::string version;
    runtime::Process& process;
    Interaction interaction;
    OpenCanvases canvases;
    RecentFiles recentFiles;
    SessionMemory session;
    JournalWriter journals;
    ToolChoice tools{interaction};
    std::optional<drawing::WholeGradient> copiedGradient;
    std::filesystem::path templateFolder; // empty without a plug-in
};

} // namespace easel::window
