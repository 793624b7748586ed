// The mouse while its button is held, the keyboard's modifiers and the snapping switches.
//
// The waiting calls give control to the host until there is something to answer; pending repaints are shown
// meanwhile.
#pragma once

#include "host/Geometry.h"

#pragma GCC visibility push(default)

/// True while the mouse button is held. May wait up to a 60th of a second for news, so that polling it costs
/// little.
[[nodiscard]] bool StillDown();
/// Waits until the mouse, in local coordinates of the current port, differs from `from` or the button is
/// released, and gives the mouse in `to`. `ticks` is the pause between two looks, in 60ths of a second; a
/// host that is woken by input may ignore it.
void WaitMove(TPoint<short> from, TPoint<short>& to, long ticks);
/// Waits until the mouse, in drawing coordinates of the active drawing window, differs from `previous` or the
/// button is released, and returns it, snapped as the snapping switches say.
[[nodiscard]] TPoint<double> PolyNewMouse(TPoint<double> previous);
/// Waits while the button is held: true as soon as the mouse is far enough from `from` (drawing coordinates;
/// 3 screen pixels in Easel) to be a drag, false if the button is released first. `cursor` is the id of the
/// cursor to show.
[[nodiscard]] bool BreakHysteresis(TPoint<double> from, short cursor);

/// The switches for snapping the mouse to the grid and to objects.
[[nodiscard]] bool GetGridSnap();
void SetGridSnap(bool on);
[[nodiscard]] bool GetObjectSnap();
void SetObjectSnap(bool on);

namespace NorvU {
/// Virtual codes of the modifier keys.
inline constexpr unsigned short kShiftKey = 56;
inline constexpr unsigned short kOptionKey = 58;
/// True while the key with that virtual code is held. Any key that the host lets stand for it counts.
[[nodiscard]] bool KeyIsDown(unsigned short keyCode);
} // namespace NorvU

#pragma GCC visibility pop
