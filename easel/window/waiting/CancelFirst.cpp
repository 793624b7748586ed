// Remembers an action until nothing is waited for any more.
#include "easel/window/waiting/CancelFirst.h"

#include <QTimer>

#include <utility>

namespace easel::window {

CancelFirst::CancelFirst(Waiting& waiting, std::function<void()> action)
    : waiting_(waiting), action_(std::move(action)) {
    connect(&waiting_, &Waiting::becameIdle, this, &CancelFirst::callLater);
}

bool CancelFirst::hasToWait() {
    if (!waiting_.busy())
        return false;
    wanted_ = true;
    waiting_.cancelAll();
    return true;
}

// The call that ended is still on the stack.
void CancelFirst::callLater() {
    if (std::exchange(wanted_, false))
        QTimer::singleShot(0, this, action_);
}

} // namespace easel::window
