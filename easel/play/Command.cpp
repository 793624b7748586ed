// Finds commands by name.
#include "easel/play/Command.h"

#include <map>

namespace easel::play {

namespace {

std::map<std::string, const Command*> allCommands() {
    std::map<std::string, const Command*> all;
    for (const auto family : {sessionCommands(), drawingCommands(), gradientMenuCommands(), fileCommands(),
                              mouseCommands(), dialogCommands(), lookingCommands()})
        for (const Command& command : family)
            all.emplace(command.name, &command);
    return all;
}

} // namespace

const Command* findCommand(const std::string& name) {
    static const auto commands = allCommands();
    const auto found = commands.find(name);
    return found == commands.end() ? nullptr : found->second;
}

} // namespace easel::play
