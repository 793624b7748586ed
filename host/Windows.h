// Drawing windows and flicker-free feedback in them.
#pragma once

#include "host/Geometry.h"

#include <cstdint>
#include <memory>

#pragma GCC visibility push(default)

/// A window of the toolbox and a drawing port; both the host's.
struct OpaqueWindowPtr;
struct OpaqueGrafPtr;
class CGraphicsEnvironment;

/// An event as the toolbox delivers it. `what` is its code, 1 for a press of the mouse button, which is the
/// only event that this interface hands out. `where` is in screen pixels, `when` in 60ths of a second. A host
/// may leave everything but `what` at 0.
struct EventRecord {
    std::uint16_t what = 0;
    std::uint32_t message = 0;
    std::uint32_t when = 0;
    TPoint<short> where;
    std::uint16_t modifiers = 0;
};

/// Makes a window visible.
void ShowWindow(OpaqueWindowPtr* window);

/// State of a drawing window; the host's.
struct HostWindow;

/// A drawing window. The host makes it and keeps it; a plug-in gets it by pointer.
class DWindow {
  public:
    explicit DWindow(HostWindow& state) : state_(&state) {}

    /// The window's port, for QD::SetPort, which is all that is done with it. Colors and pens may be set
    /// while it is current; nothing is drawn in it except through a CSyncronizedBuffer.
    [[nodiscard]] OpaqueGrafPtr* GetMacPort();
    /// Deselects every object.
    void UnselectAll();
    /// Prepares undo for the change that follows: what is deleted and inserted until the next SetUndo is
    /// undone as one, or until the callback that called this returns. `kind` tells what sort of change it is;
    /// 3, the only one in use, is a change of how objects are filled. Preparing without a change leaves
    /// nothing to undo.
    void SetUndo(long kind);
    /// Marks the area of the selected objects for redrawing.
    void InvalSelection();
    /// Sets the window's cursor from a cursor resource of the plug-in or of the host (606: the host's plain
    /// tool cursor).
    void SetIDCursor(long cursorId);
    /// Scrolls the window if the mouse is near or beyond its edge. `wait` true scrolls until it no longer is,
    /// or the button is released.
    void ScrollWDiag(bool wait);

    /// The state, for the host's own use.
    [[nodiscard]] HostWindow& State() const { return *state_; }

  private:
    HostWindow* state_;
};

/// The front drawing window; null if there is none. During a click it is the window that was clicked.
[[nodiscard]] DWindow* ActiveDrawingWindow();

/// Feedback over a drawing window without flicker: each round starts from the window's image as it is without
/// feedback.
class CSyncronizedBuffer {
  public:
    /// `wholeWindow` true takes the whole window's image, false the part that is visible through other
    /// windows.
    CSyncronizedBuffer(DWindow* window, bool wholeWindow);
    CSyncronizedBuffer(CSyncronizedBuffer const&) = delete;
    CSyncronizedBuffer& operator=(CSyncronizedBuffer const&) = delete;
    /// Takes the feedback off the screen.
    ~CSyncronizedBuffer();

    /// Brings the image back to the window without feedback and gets it ready to be drawn into.
    void RefreshAndBeginDrawing();
    /// The environment to draw into, valid until EndDrawingAndUpdateScreen.
    [[nodiscard]] CGraphicsEnvironment* GetGEnv();
    /// Shows what was drawn.
    void EndDrawingAndUpdateScreen();

  private:
    struct State;
    std::unique_ptr<State> state_;
};

#pragma GCC visibility pop
