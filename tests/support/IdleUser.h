// A user for tests of the host, who does nothing and declines everything.
#pragma once

#include "easel/runtime/User.h"
#include "host/Gradient.h"

#include <gtest/gtest.h>

namespace tests {

// Tests override what they need.
class IdleUser : public easel::runtime::User {
  public:
    easel::runtime::MouseState mouse() override { return {}; }
    easel::runtime::MouseState waitWhileDown() override { return mouse(); }
    easel::runtime::MouseState waitForMove(easel::drawing::Point) override { return mouse(); }
    bool dragBegins(easel::drawing::Point, double) override { return false; }
    bool keyIsDown(std::uint16_t) override { return false; }
    void present(easel::runtime::DrawingWindow&) override {}
    void repaint(easel::runtime::DrawingWindow&, const easel::drawing::Box&) override {}
    void scrollTowardsMouse(easel::runtime::DrawingWindow&) override {}
    void setCursor(easel::runtime::DrawingWindow&, long) override {}
    void setDialogCursor(long) override {}
    void beep() override {}
    void tell(const easel::files::Error& error, const std::string& outcome) override {
        ADD_FAILURE() << error.message() << ". " << outcome;
    }
    void dialogShown(easel::runtime::Dialog&) override {}
    void dialogClosed(easel::runtime::Dialog&) override {}
    std::int16_t nextHit(easel::runtime::Dialog&) override { return 0; }
    easel::runtime::Answer confirm(const easel::runtime::Alert&) override {
        return easel::runtime::Answer::No;
    }
    std::optional<RGBColor> pickColor(const std::string&, const RGBColor&) override { return std::nullopt; }
    void runDeletion(easel::runtime::DeletionList&) override {}
};

} // namespace tests
