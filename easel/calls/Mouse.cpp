// Implements host/Mouse.h.
#include "host/Mouse.h"

#include "easel/runtime/Dialog.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/HostPixels.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/Process.h"
#include "easel/runtime/Snap.h"
#include "easel/runtime/User.h"

using easel::runtime::journal;
using easel::runtime::process;
using easel::runtime::Switch;

namespace {

// How far the mouse has to move to make a press a drag, in screen pixels.
constexpr double kDragDistance = 3;

bool isOn(Switch state) {
    return state == Switch::On;
}
Switch switchOf(bool on) {
    return on ? Switch::On : Switch::Off;
}

} // namespace

bool StillDown() {
    journal("StillDown");
    process().dialogs().flushFront();
    const bool down = process().user().waitWhileDown().down;
    if (const easel::runtime::Dialog* dialog = process().dialogs().front(); dialog && down)
        process().drag().followed(*dialog);
    return down;
}

void WaitMove(TPoint<short> from, TPoint<short>& to, long ticks) {
    journal("WaitMove", ticks);
    process().dialogs().flushFront();
    const auto mouse =
        process().user().waitForMove({static_cast<double>(from.h), static_cast<double>(from.v)});
    to.Set(easel::runtime::pixelAt(mouse.at.x), easel::runtime::pixelAt(mouse.at.y));
}

TPoint<double> PolyNewMouse(TPoint<double> previous) {
    journal("PolyNewMouse");
    const auto mouse = process().user().waitForMove(easel::runtime::toPoint(previous));
    const easel::runtime::DrawingWindow* window = process().activeWindow();
    return easel::runtime::toHost(window ? easel::runtime::snapped(*window, mouse.at, process().snap())
                                         : mouse.at);
}

bool BreakHysteresis(TPoint<double> from, short cursor) {
    journal("BreakHysteresis", cursor);
    easel::runtime::User& user = process().user();
    if (easel::runtime::DrawingWindow* window = process().activeWindow())
        user.setCursor(*window, cursor);
    return user.dragBegins(easel::runtime::toPoint(from), kDragDistance);
}

bool GetGridSnap() {
    journal("GetGridSnap");
    return isOn(process().snap().grid);
}

void SetGridSnap(bool on) {
    journal("SetGridSnap", on);
    process().snap().grid = switchOf(on);
}

bool GetObjectSnap() {
    journal("GetObjectSnap");
    return isOn(process().snap().object);
}

void SetObjectSnap(bool on) {
    journal("SetObjectSnap", on);
    process().snap().object = switchOf(on);
}

bool NorvU::KeyIsDown(unsigned short keyCode) {
    journal("NorvU::KeyIsDown", keyCode);
    return process().user().keyIsDown(keyCode);
}
