// A test of what is left of a drawing when the program ends without being asked to.
#pragma once

#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <csignal>

namespace desktop {

namespace fs = std::filesystem;

// What may be lost at the most.
inline constexpr std::chrono::seconds kLongest{5};
inline constexpr const char* kOffer = "Unsaved Drawings";
inline constexpr const char* kChanged = "data-easel-record";

class RecoveryTest : public DesktopTest {
  protected:
    fs::path journals() const { return folder() / "state/kestrad/recovery"; }

    std::vector<std::string> kept() const {
        std::vector<std::string> texts;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(journals(), none))
            if (entry.path().extension() == ".svg")
                texts.push_back(contents(entry.path()));
        return texts;
    }

    bool nothingIsKept() const {
        return eventually([&] { return !fs::exists(journals()) || fs::is_empty(journals()); });
    }

    void change() {
        screen().click(onScreen(160, 110));
        EXPECT_TRUE(colorVanishes(kPlain));
    }

    void waitUntilKept() {
        EXPECT_TRUE(eventually(
            [&] { return kept().size() == 1 && kept()[0].find(kChanged) != std::string::npos; }, kLongest));
    }

    void kill() {
        program().signal(SIGKILL);
        EXPECT_EQ(program().wait(10s), 128 + SIGKILL);
        EXPECT_TRUE(vanishes("drawing.svg"));
    }

    void changeAndKill() {
        startWithDrawing();
        change();
        waitUntilKept();
        kill();
    }
};

} // namespace desktop
