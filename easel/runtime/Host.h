// What the host keeps for the whole process: one user, one front window, one set of switches.
#pragma once

#include "host/Objects.h"

namespace easel::paint {
class Port;
}

namespace easel::runtime {

class DrawingWindow;
class User;

enum class Switch { off, on };

struct SnapSwitches {
    Switch grid = Switch::off;
    Switch object = Switch::off;
};

// Everything here is used on the user-interface thread only. Nothing pointed to is owned.
struct Host {
    User* user = nullptr;                  // who is asked, never null once a program runs the plug-in
    DrawingWindow* activeWindow = nullptr; // the front drawing window
    paint::Port* currentPort = nullptr;    // where the plug-in's drawing calls go
    SelDescrimT pickFilter;                // the object kinds that a pick may return; at first all of them
    SnapSwitches snap;
};

// The one host of the process.
Host& theHost();

} // namespace easel::runtime
