// Completion of the command line in shells, made of the command line's own definitions.
#pragma once

#include "easel/commands/CommandText.h"

namespace easel::commands {

// Scripts that the shells load by themselves when they lie in the right folder.
std::string bashCompletion(const CommandText& program);
std::string zshCompletion(const CommandText& program);

} // namespace easel::commands
