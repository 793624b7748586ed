// The person at the machine, as the host sees it: a script or somebody at a desktop.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/files/Result.h"

#include <cstdint>
#include <optional>
#include <string>

struct RGBColor;

namespace easel::runtime {

class DeletionList;
class Dialog;
class DrawingWindow;
struct Alert;

// The key codes that the host knows, as the plug-in asks for them.
constexpr std::uint16_t kShiftKey = 56;
constexpr std::uint16_t kOptionKey = 58;

// The mouse, in the local coordinates of the window in which its button was pressed: drawing coordinates in a
// drawing window, pixels from the top-left corner of the content in a dialog.
struct MouseState {
    drawing::Point at;
    bool down = false;
};

enum class Answer { No, Yes };

// All calls come on the one user-interface thread. Calls that wait return only when they have their answer;
// while they wait, whoever implements this keeps the screen alive.
class User {
  public:
    virtual ~User() = default;

    // What is known of the mouse right now; never waits.
    virtual MouseState mouse() = 0;

    // Returns after the next move or release, or after at most a sixtieth of a second while the button is
    // held. Returns at once when the button is up.
    virtual MouseState waitWhileDown() = 0;

    // Returns at once if the mouse already differs from the point or the button is up, else with the next
    // move or release.
    virtual MouseState waitForMove(drawing::Point from) = 0;

    // Waits until the mouse is `distance` or more screen pixels away from the point (true) or is released
    // (false). The point is in the coordinates of the window with the pressed button.
    virtual bool dragBegins(drawing::Point from, double distance) = 0;

    virtual bool keyIsDown(std::uint16_t code) = 0;

    // Shows at once what the window's image and feedback now hold.
    virtual void present(DrawingWindow& window) = 0;

    // An area of the window, in drawing coordinates, is marked for repainting; it is repainted when there is
    // time.
    virtual void repaint(DrawingWindow& window, const drawing::Box& area) = 0;

    // Scrolls the window if the mouse is beyond its edge.
    virtual void scrollTowardsMouse(DrawingWindow& window) = 0;

    // Shows the cursor with this resource id over the window.
    virtual void setCursor(DrawingWindow& window, long id) = 0;

    // Shows a cursor over the front dialog; 0 is the arrow.
    virtual void setDialogCursor(long id) = 0;

    virtual void beep() = 0;

    // Says what went wrong, and what comes of it: a sentence.
    virtual void tell(const files::Error& error, const std::string& outcome) = 0;

    // A dialog becomes visible, filled as it is now; it stays the host's. Changes from here on are told to
    // the dialog's observer.
    virtual void dialogShown(Dialog& dialog) = 0;

    // The last word about a dialog, shown or not; the reference is void afterwards.
    virtual void dialogClosed(Dialog& dialog) = 0;

    // Waits for the user to hit an item of the dialog and returns its number. 0 when the program is quitting:
    // nobody will hit anything any more, which counts as Cancel.
    virtual std::int16_t nextHit(Dialog& dialog) = 0;

    // Asks a question; a program that is quitting gets `no`.
    virtual Answer confirm(const Alert& alert) = 0;

    // Lets the user pick a color, 16 bits per channel; empty when cancelled.
    virtual std::optional<RGBColor> pickColor(const std::string& prompt, const RGBColor& start) = 0;

    // Runs the list from which rows are chosen and deleted, until it is closed.
    virtual void runDeletion(DeletionList& list) = 0;
};

} // namespace easel::runtime
