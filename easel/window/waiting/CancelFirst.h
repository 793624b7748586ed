// Cancels all waiting before what cannot be done in the middle of it, such as closing a window.
#pragma once

#include "easel/window/waiting/Waiting.h"

#include <functional>

namespace easel::window {

class CancelFirst : public QObject {
    Q_OBJECT

  public:
    // The action asks `hasToWait` itself, as it may be called at any time.
    CancelFirst(Waiting& waiting, std::function<void()> action);

    // Whether the action has to wait. If so, all that is waited for is cancelled, and the action is called
    // from the event loop when that is over: once, however often this was asked until then.
    bool hasToWait();

  private:
    void callLater();

    Waiting& waiting_;
    std::function<void()> action_;
    bool wanted_ = false;
};

} // namespace easel::window
