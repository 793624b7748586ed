// What stands behind a drawing window of the host interface.
#pragma once

#include "host/Windows.h"

namespace easel::host {
class DrawingWindow;
}

struct HostWindow {
    easel::host::DrawingWindow* window;
};
