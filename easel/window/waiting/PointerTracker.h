// Follows the mouse from press to release while the plug-in waits inside a host call.
#pragma once

#include "easel/runtime/User.h"
#include "easel/window/waiting/PointerSurface.h"

#include <QElapsedTimer>
#include <QPointF>

#include <chrono>
#include <optional>

namespace easel::window {

// Waiting sleeps while events are handled, so repaints go on and a mouse held still costs nothing. Moves that
// arrive while the plug-in is busy are merged, but the last one before the release is always seen on its own.
class PointerTracker {
  public:
    // --- What the surfaces report.
    void pressed(PointerSurface& surface, QPointF position);
    void moved(QPointF position);
    void released(QPointF position);
    // The surface goes away.
    void forget(const PointerSurface& surface);

    // --- What the host asks; see easel/interface/User.h.
    runtime::MouseState mouse() const;
    runtime::MouseState waitWhileDown();
    runtime::MouseState waitForMove(drawing::Point from);
    bool dragBegins(drawing::Point from, double distance);
    void scrollTowardsMouse();

    bool down() const { return down_; }
    // The button went up, though whoever follows the mouse may not have heard of it yet.
    bool over() const { return !down_ || releasePosition_; }

    // A modifier key went down or up: who follows the mouse has to look again.
    void keysChanged() { keysChanged_ = true; }

    // --- Other waits sleep in the same way.
    // Sleeps and handles events until the condition holds or waiting is given up.
    template <class Condition> void sleepUntil(Condition condition) {
        while (!condition() && !givenUp_)
            sleep();
    }
    // From now on the button counts as up and every wait ends at once, until `resume`.
    void giveUp() { givenUp_ = true; }
    void resume() { givenUp_ = false; }
    bool givenUp() const { return givenUp_; }

  private:
    void sleep(std::optional<std::chrono::milliseconds> atMost = {});
    bool takeNews();
    bool nearEdge() const;

    PointerSurface* surface_ = nullptr;
    QPointF position_;
    bool down_ = false;
    std::optional<QPointF> newPosition_;
    std::optional<QPointF> releasePosition_;
    std::optional<drawing::Point> lastAnswer_;
    bool unheeded_ = false; // the last answer was news, and what it led to is not on the screen yet
    QElapsedTimer sinceScroll_;
    bool keysChanged_ = false;
    bool givenUp_ = false;
};

} // namespace easel::window
