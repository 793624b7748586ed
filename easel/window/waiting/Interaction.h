// All that the program has for following, hearing and stopping its user: one of each.
#pragma once

#include "easel/window/waiting/DialogStack.h"
#include "easel/window/waiting/InputGate.h"
#include "easel/window/waiting/ModifierKeys.h"
#include "easel/window/waiting/PointerTracker.h"
#include "easel/window/waiting/Waiting.h"

namespace easel::window {

// For those who need several of them; who needs one asks for that one.
struct Interaction {
    Waiting waiting;
    PointerTracker pointer{waiting};
    InputGate gate;
    // After the gate, so that keys and clicks that the gate turns away are noted before.
    ModifierKeys keys{pointer};
    DialogStack dialogs{waiting, gate};
};

} // namespace easel::window
