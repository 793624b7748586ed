// The mouse, the modifier keys and the snapping switches.
#include "host/Mouse.h"

#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/HostWindow.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/OpenDialogs.h"
#include "easel/runtime/Snap.h"
#include "easel/runtime/User.h"

#include <algorithm>
#include <cmath>
#include <limits>

using easel::runtime::journal;
using easel::runtime::Switch;
using easel::runtime::theHost;

namespace {

// How far the mouse has to move to make a press a drag, in screen pixels.
constexpr double kDragDistance = 3;

short toPixel(double coordinate) {
    constexpr double kLowest = std::numeric_limits<short>::min();
    constexpr double kHighest = std::numeric_limits<short>::max();
    return static_cast<short>(std::clamp(std::floor(coordinate), kLowest, kHighest));
}

bool isOn(Switch state) {
    return state == Switch::on;
}
Switch switchOf(bool on) {
    return on ? Switch::on : Switch::off;
}

} // namespace

bool StillDown() {
    journal("StillDown");
    easel::runtime::flushFrontDialog();
    return theHost().user->waitWhileDown().down;
}

void WaitMove(TPoint<short> from, TPoint<short>& to, long ticks) {
    journal("WaitMove", ticks);
    easel::runtime::flushFrontDialog();
    const auto mouse =
        theHost().user->waitForMove({static_cast<double>(from.h), static_cast<double>(from.v)});
    to.Set(toPixel(mouse.at.x), toPixel(mouse.at.y));
}

TPoint<double> PolyNewMouse(TPoint<double> previous) {
    journal("PolyNewMouse");
    const auto mouse = theHost().user->waitForMove(easel::runtime::toPoint(previous));
    const easel::runtime::DrawingWindow* window = theHost().activeWindow;
    return easel::runtime::toHost(window ? easel::runtime::snapped(*window, mouse.at, theHost().snap)
                                         : mouse.at);
}

bool BreakHysteresis(TPoint<double> from, short cursor) {
    journal("BreakHysteresis", cursor);
    easel::runtime::Host& host = theHost();
    if (host.activeWindow)
        host.user->setCursor(*host.activeWindow, cursor);
    return host.user->dragBegins(easel::runtime::toPoint(from), kDragDistance);
}

bool GetGridSnap() {
    journal("GetGridSnap");
    return isOn(theHost().snap.grid);
}

void SetGridSnap(bool on) {
    journal("SetGridSnap", on);
    theHost().snap.grid = switchOf(on);
}

bool GetObjectSnap() {
    journal("GetObjectSnap");
    return isOn(theHost().snap.object);
}

void SetObjectSnap(bool on) {
    journal("SetObjectSnap", on);
    theHost().snap.object = switchOf(on);
}

bool NorvU::KeyIsDown(unsigned short keyCode) {
    journal("NorvU::KeyIsDown", keyCode);
    return theHost().user->keyIsDown(keyCode);
}

namespace QD {
void GetMouse(TPoint<short>& where) {
    journal("QD::GetMouse");
    const easel::drawing::Point at = theHost().user->mouse().at;
    where.Set(toPixel(at.x), toPixel(at.y));
}
} // namespace QD
