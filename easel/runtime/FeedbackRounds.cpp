// Hands the lines of a round to the window.
#include "easel/runtime/FeedbackRounds.h"

#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/User.h"

namespace easel::runtime {

FeedbackRounds::~FeedbackRounds() {
    begin();
    show();
}

void FeedbackRounds::show() {
    if (!window_)
        return;
    window_->setFeedback(graphics_.lines);
    user_.present(*window_);
}

} // namespace easel::runtime
