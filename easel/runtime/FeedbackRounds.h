// The feedback of a drag, shown round by round.
#pragma once

#include "easel/runtime/HostGraphics.h"
#include "host/Drawing.h"

namespace easel::runtime {

class DrawingWindow;
class User;

class FeedbackRounds {
  public:
    // Null for the window shows nothing. Window and user outlive the rounds.
    FeedbackRounds(DrawingWindow* window, User& user) : window_(window), user_(user) {}
    FeedbackRounds(const FeedbackRounds&) = delete;
    FeedbackRounds& operator=(const FeedbackRounds&) = delete;
    // Takes the feedback off the screen.
    ~FeedbackRounds();

    // A new round begins without a line.
    void begin() { graphics_.lines.clear(); }
    CGraphicsEnvironment& environment() { return environment_; }
    // Shows what was drawn in this round.
    void show();

  private:
    DrawingWindow* window_;
    User& user_;
    HostGraphics graphics_;
    CGraphicsEnvironment environment_{graphics_};
};

} // namespace easel::runtime
