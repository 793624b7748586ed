// The commands of scenarios, by name.
#pragma once

#include "easel/play/Arguments.h"

#include <span>
#include <string>

namespace easel::play {

class Session;

// Looking at things is possible at any time; everything else only when the plug-in waits for nothing.
enum class When { Always, Idle };

struct Command {
    const char* name;
    When when;
    // Throws PlayError if it cannot be played.
    void (*play)(Session& session, Arguments& arguments);
};

// Null if there is no such command.
const Command* findCommand(const std::string& name);

// The families, each in a file of its own.
std::span<const Command> sessionCommands();
std::span<const Command> drawingCommands();
std::span<const Command> gradientMenuCommands();
std::span<const Command> fileCommands();
std::span<const Command> mouseCommands();
std::span<const Command> dialogCommands();
std::span<const Command> lookingCommands();

} // namespace easel::play
