// The commands that only an open dialog takes, and looking at it.
#include "easel/play/Command.h"
#include "easel/play/PlayError.h"

namespace easel::play {

namespace {

// While a dialog is open, whoever waits for it plays these.
void playWithoutDialog(Session&, Arguments&) {
    throw PlayError("no dialog is open");
}

constexpr Command kDialogCommands[] = {
    {"hit", When::Idle, playWithoutDialog},    {"focus", When::Idle, playWithoutDialog},
    {"type", When::Idle, playWithoutDialog},   {"erase", When::Idle, playWithoutDialog},
    {"set", When::Idle, playWithoutDialog},    {"choose", When::Idle, playWithoutDialog},
    {"answer", When::Idle, playWithoutDialog}, {"color", When::Idle, playWithoutDialog},
    {"select", When::Idle, playWithoutDialog}, {"command", When::Idle, playWithoutDialog},
};

} // namespace

std::span<const Command> dialogCommands() {
    return kDialogCommands;
}

} // namespace easel::play
