// The waits of mouse tracking, as sleeps during which events are handled.
#include "easel/window/waiting/PointerTracker.h"

#include <QDeadlineTimer>

#include <chrono>
#include <utility>

namespace easel::window {
namespace {

constexpr std::chrono::milliseconds kFrame{16};

} // namespace

void PointerTracker::pressed(PointerSurface& surface, QPointF position) {
    surface_ = &surface;
    position_ = position;
    down_ = true;
    newPosition_.reset();
    releasePosition_.reset();
    lastAnswer_.reset();
    unheeded_ = false;
    led_ = false;
    followed_ = false;
    sinceScroll_.start();
}

void PointerTracker::moved(QPointF position) {
    if (!down_ || led_)
        return;
    newPosition_ = position;
}

void PointerTracker::released(QPointF position) {
    if (!down_ || led_)
        return;
    releasePosition_ = position;
}

void PointerTracker::lead(std::deque<QPointF> way) {
    newPosition_.reset();
    releasePosition_ = way.empty() ? position_ : way.back();
    way_ = std::move(way);
    led_ = true;
}

void PointerTracker::forget(const PointerSurface& surface) {
    if (surface_ != &surface)
        return;
    surface_ = nullptr;
    down_ = false;
}

// Moves on to what happened next; false if nothing did.
bool PointerTracker::takeNews() {
    if (led_ && down_) {
        down_ = !way_.empty();
        if (down_) {
            position_ = way_.front();
            way_.pop_front();
        }
        return true;
    }
    if (newPosition_) {
        position_ = *newPosition_;
        newPosition_.reset();
        return true;
    }
    if (releasePosition_ && down_) {
        position_ = *releasePosition_;
        down_ = false;
        return true;
    }
    return false;
}

runtime::MouseState PointerTracker::mouse() const {
    if (!surface_)
        return {};
    return {surface_->toLocal(position_), down_ && !waiting_.cancelled()};
}

bool PointerTracker::nearEdge() const {
    return surface_ && surface_->wouldScroll(position_);
}

runtime::MouseState PointerTracker::waitWhileDown() {
    followed_ = true;
    // Whoever follows the mouse asks this between hearing of a move and showing it.
    if (!down_ || waiting_.cancelled() || std::exchange(unheeded_, false))
        return mouse();
    if (!takeNews()) {
        waiting_.sleep(kFrame);
        takeNews();
    }
    return mouse();
}

runtime::MouseState PointerTracker::waitForMove(drawing::Point from) {
    followed_ = true;
    takeNews();
    const auto answer = [this] {
        const runtime::MouseState state = mouse();
        unheeded_ = state.at != lastAnswer_;
        lastAnswer_ = state.at;
        return state;
    };
    const runtime::MouseState now = mouse();
    if (!now.down)
        return answer();
    // If the point asked about is not the mouse but, say, its constrained place, then it differs always; what
    // is not news is not worth more than a look every frame.
    const bool known = now.at != from && now.at == lastAnswer_;
    if (now.at == from || known) {
        const bool brief = known || nearEdge();
        const QDeadlineTimer end = brief ? QDeadlineTimer(kFrame) : QDeadlineTimer(QDeadlineTimer::Forever);
        keysChanged_ = false;
        while (!takeNews() && !waiting_.cancelled() && !keysChanged_ && !end.hasExpired())
            waiting_.sleep(brief ? std::optional(kFrame) : std::nullopt);
        scrollTowardsMouse();
    }
    return answer();
}

bool PointerTracker::dragBegins(drawing::Point from, double distance) {
    while (true) {
        const runtime::MouseState now = mouse();
        if (!now.down)
            return false;
        if (drawing::length(now.at - from) * surface_->pixelsPerUnit() >= distance)
            return true;
        if (!takeNews())
            waiting_.sleep();
    }
}

void PointerTracker::scrollTowardsMouse() {
    if (!mouse().down || !nearEdge() || sinceScroll_.elapsed() < kFrame.count())
        return;
    surface_->scrollTowards(position_);
    sinceScroll_.restart();
}

} // namespace easel::window
