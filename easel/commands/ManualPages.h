// The manual pages of the command line, made of what --help says.
#pragma once

#include "easel/commands/CommandText.h"

namespace easel::commands {

// One page of the manual's first section, in the man macros of troff. Commands below the given one are told
// of in full, but for the program itself, whose commands have pages of their own.
std::string manualPage(const CommandText& program, const CommandText& command, const std::string& version);

} // namespace easel::commands
