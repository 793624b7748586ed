// The dialogs of the user that a scenario plays.
#include "easel/interface/Dialog.h"
#include "easel/play/ScriptedUser.h"
#include "easel/play/Session.h"
#include "easel/play/Waiting.h"

#include <algorithm>

namespace easel::play {

void ScriptedUser::dialogShown(host::Dialog& dialog) {
    dialogs_.push_back(&dialog);
}

void ScriptedUser::dialogClosed(host::Dialog& dialog) {
    std::erase(dialogs_, &dialog);
}

std::int16_t ScriptedUser::nextHit(host::Dialog&) {
    return 0;
}

host::Answer ScriptedUser::confirm(const host::Alert&) {
    return host::Answer::no;
}

std::optional<RGBColor> ScriptedUser::pickColor(const std::string&, const RGBColor&) {
    return std::nullopt;
}

void ScriptedUser::runDeletion(host::DeletionList&) {}

} // namespace easel::play
