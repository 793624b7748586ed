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
    {"hit", When::idle, playWithoutDialog},    {"focus", When::idle, playWithoutDialog},
    {"type", When::idle, playWithoutDialog},   {"erase", When::idle, playWithoutDialog},
    {"set", When::idle, playWithoutDialog},    {"choose", When::idle, playWithoutDialog},
    {"answer", When::idle, playWithoutDialog}, {"color", When::idle, playWithoutDialog},
    {"select", When::idle, playWithoutDialog}, {"command", When::idle, playWithoutDialog},
};

} // namespace

std::span<const Command> dialogCommands() {
    return kDialogCommands;
}

} // namespace easel::play
