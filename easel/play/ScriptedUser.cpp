// The mouse and the keys of the user that a scenario plays.
#include "easel/play/ScriptedUser.h"

#include "easel/play/Session.h"
#include "easel/play/Waiting.h"

namespace easel::play {

namespace {

constexpr const char* kHolding = "the mouse button is held";

} // namespace

void ScriptedUser::press(drawing::Point at) {
    if (mouse_.down)
        throw PlayError("the mouse button is held already");
    mouse_ = {at, true};
}

void ScriptedUser::moveTo(drawing::Point at) {
    mouse_.at = at;
}

void ScriptedUser::release() {
    if (!mouse_.down)
        throw PlayError("the mouse button is not held");
    mouse_.down = false;
}

void ScriptedUser::waitForMouse() {
    const auto moved =
        waitFor<bool>(session_, session_.steps(), kHolding, [&](const Step& step) -> std::optional<bool> {
            if (step.words[0] != "move" && step.words[0] != "release")
                throw outOfPlace(step, kHolding);
            playMouseStep(session_, step);
            return true;
        });
    if (!moved)
        letGo();
}

runtime::MouseState ScriptedUser::waitWhileDown() {
    if (mouse_.down)
        waitForMouse();
    return mouse_;
}

runtime::MouseState ScriptedUser::waitForMove(drawing::Point from) {
    if (mouse_.down && mouse_.at == from)
        waitForMouse();
    return mouse_;
}

bool ScriptedUser::dragBegins(drawing::Point from, double distance) {
    while (mouse_.down) {
        // Drawings are shown at scale 1, so that a drawing unit is a pixel.
        if (length(mouse_.at - from) >= distance)
            return true;
        waitForMouse();
    }
    return false;
}

bool ScriptedUser::keyIsDown(std::uint16_t code) {
    return (code == runtime::kOptionKey && optionDown_) || (code == runtime::kShiftKey && shiftDown_);
}

void ScriptedUser::tell(const files::Error& error, const std::string& outcome) {
    session_.say(error.message() + ". " + outcome);
}

} // namespace easel::play
