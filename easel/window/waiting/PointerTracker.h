// Follows the mouse from press to release while the plug-in waits inside a host call.
#pragma once

#include "easel/runtime/User.h"
#include "easel/window/waiting/PointerSurface.h"
#include "easel/window/waiting/Waiting.h"

#include <QElapsedTimer>
#include <QPointF>

#include <deque>
#include <optional>

namespace easel::window {

// Waiting sleeps while events are handled, so repaints go on and a mouse held still costs nothing. Moves that
// arrive while the plug-in is busy are merged, but the last one before the release is always seen on its own.
// When all waiting is cancelled, the button counts as up.
class PointerTracker {
  public:
    explicit PointerTracker(Waiting& waiting) : waiting_(waiting) {}

    // --- What the surfaces report.
    void pressed(PointerSurface& surface, QPointF position);
    void moved(QPointF position);
    void released(QPointF position);
    // Whatever the real mouse does, the one that is followed goes this way, each place on its own, and then
    // the button goes up.
    void lead(std::deque<QPointF> way);
    // The surface goes away.
    void forget(const PointerSurface& surface);

    // --- What the host asks; see easel/runtime/User.h.
    runtime::MouseState mouse() const;
    runtime::MouseState waitWhileDown();
    runtime::MouseState waitForMove(drawing::Point from);
    bool dragBegins(drawing::Point from, double distance);
    void scrollTowardsMouse();

    // Somebody has asked about the mouse since it was pressed on this surface.
    bool followedOn(const PointerSurface& surface) const {
        return down_ && followed_ && surface_ == &surface;
    }

    // The button went up, though whoever follows the mouse may not have heard of it yet.
    bool over() const { return !down_ || releasePosition_; }

    // A modifier key went down or up: who follows the mouse has to look again.
    void keysChanged() { keysChanged_ = true; }

  private:
    bool takeNews();
    bool nearEdge() const;

    Waiting& waiting_;
    PointerSurface* surface_ = nullptr;
    QPointF position_;
    bool down_ = false;
    std::optional<QPointF> newPosition_;
    std::optional<QPointF> releasePosition_;
    std::deque<QPointF> way_;
    bool led_ = false; // along the way
    bool followed_ = false;
    std::optional<drawing::Point> lastAnswer_;
    bool unheeded_ = false; // the last answer was news, and what it led to is not on the screen yet
    QElapsedTimer sinceScroll_;
    bool keysChanged_ = false;
};

} // namespace easel::window
