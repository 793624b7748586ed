// The mouse, the modifier keys and the snapping switches.
#include "host/Mouse.h"

#include "easel/interface/DrawingWindow.h"
#include "easel/interface/Host.h"
#include "easel/interface/HostPoint.h"
#include "easel/interface/HostWindow.h"
#include "easel/interface/Journal.h"
#include "easel/interface/OpenDialogs.h"
#include "easel/interface/Snap.h"
#include "easel/interface/User.h"

#include <algorithm>
#include <cmath>
#include <limits>

using easel::host::journal;
using easel::host::Switch;
using easel::host::theHost;

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
    easel::host::flushFrontDialog();
    return theHost().user->waitWhileDown().down;
}

void WaitMove(TPoint<short> from, TPoint<short>& to, long ticks) {
    journal("WaitMove", ticks);
    easel::host::flushFrontDialog();
    const auto mouse =
        theHost().user->waitForMove({static_cast<double>(from.h), static_cast<double>(from.v)});
    to.Set(toPixel(mouse.at.x), toPixel(mouse.at.y));
}

TPoint<double> PolyNewMouse(TPoint<double> previous) {
    journal("PolyNewMouse");
    const auto mouse = theHost().user->waitForMove(easel::host::toPoint(previous));
    const easel::host::DrawingWindow* window = theHost().activeWindow;
    return easel::host::toHost(window ? easel::host::snapped(*window, mouse.at, theHost().snap) : mouse.at);
}

bool BreakHysteresis(TPoint<double> from, short cursor) {
    journal("BreakHysteresis", cursor);
    easel::host::Host& host = theHost();
    if (host.activeWindow)
        host.user->setCursor(*host.activeWindow, cursor);
    return host.user->dragBegins(easel::host::toPoint(from), kDragDistance);
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
