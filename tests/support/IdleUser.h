// A user for tests of the host, who does nothing and declines everything.
#pragma once

#include "easel/interface/User.h"
#include "host/Gradient.h"

#include <gtest/gtest.h>

namespace tests {

// Tests override what they need.
class IdleUser : public easel::host::User {
  public:
    easel::host::MouseState mouse() override { return {}; }
    easel::host::MouseState waitWhileDown() override { return mouse(); }
    easel::host::MouseState waitForMove(easel::drawing::Point) override { return mouse(); }
    bool dragBegins(easel::drawing::Point, double) override { return false; }
    bool keyIsDown(std::uint16_t) override { return false; }
    void present(easel::host::DrawingWindow&) override {}
    void repaint(easel::host::DrawingWindow&, const easel::drawing::Box&) override {}
    void scrollTowardsMouse(easel::host::DrawingWindow&) override {}
    void setCursor(easel::host::DrawingWindow&, long) override {}
    void setDialogCursor(long) override {}
    void beep() override {}
    void tell(const std::string& message) override { ADD_FAILURE() << message; }
    void dialogShown(easel::host::Dialog&) override {}
    void dialogClosed(easel::host::Dialog&) override {}
    std::int16_t nextHit(easel::host::Dialog&) override { return 0; }
    easel::host::Answer confirm(const easel::host::Alert&) override { return easel::host::Answer::no; }
    std::optional<RGBColor> pickColor(const std::string&, const RGBColor&) override { return std::nullopt; }
    void runDeletion(easel::host::DeletionList&) override {}
};

} // namespace tests
