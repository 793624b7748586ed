// What stands behind a drawing window of the host interface.
#pragma once

#include "host/Windows.h"

namespace easel::runtime {
class DrawingWindow;
}

struct HostWindow {
    easel::runtime::DrawingWindow* window;
};
