// The program on a Wayland compositor, which is itself a window on the test's screen: real events go through
// it.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

namespace desktop {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class WaylandTest : public DesktopTest {
  protected:
    void SetUp() override {
        DesktopTest::SetUp();
        std::map<std::string, std::string> variables = environment();
        variables["XDG_RUNTIME_DIR"] = folder();
        compositor_ = std::make_unique<Process>(
            std::vector<std::string>{"weston", "--backend=x11-backend.so", "--use-pixman", "--no-config",
                                     "--width=1000", "--height=700", "--socket=" + kSocket},
            variables, folder() / "weston.log");
        ASSERT_TRUE(eventually([&] { return fs::exists(folder() / kSocket); }, 30s))
            << contents(folder() / "weston.log");
    }
    void TearDown() override {
        DesktopTest::TearDown();
        compositor_.reset();
    }

    void startOnWayland() {
        startWithDrawing({{"XDG_RUNTIME_DIR", folder()},
                          {"WAYLAND_DISPLAY", kSocket},
                          {"QT_QPA_PLATFORM", "wayland"},
                          {"DISPLAY", ""}});
    }

    // The compositor takes its pointer's place from where it enters, and moves it by steps from there.
    bool pointAt(Spot spot) {
        const auto around = [&] {
            const Picture shown = screen().picture();
            std::vector<std::uint32_t> pixels;
            for (int y = spot.y - 16; y < spot.y + 16; ++y)
                for (int x = spot.x - 16; x < spot.x + 16; ++x)
                    pixels.push_back(shown.at({x, y}));
            return pixels;
        };
        const auto without = around();
        return eventually([&] {
            screen().moveTo({1, 1});
            screen().moveTo(spot);
            return around() != without;
        });
    }

    const std::string kSocket = "easel-test";

  private:
    std::unique_ptr<Process> compositor_;
};

TEST_F(WaylandTest, AClickIsHeardShownSavedAndTakenBack) {
    startOnWayland();
    const std::string before = contents(drawing());
    ASSERT_TRUE(pointAt(onScreen(160, 110)));
    screen().click(onScreen(160, 110));
    EXPECT_TRUE(colorVanishes(kPlain));
    screen().key("ctrl+s");
    EXPECT_TRUE(eventually([&] { return contents(drawing()) != before; }));
    EXPECT_THAT(contents(drawing()),
                HasSubstr("id=\"plain\" x=\"60\" y=\"40\" width=\"200\" height=\"140\" fill=\"url(#"));
    screen().key("ctrl+z");
    waitForColor(kPlain);
    screen().key("ctrl+s");
    EXPECT_TRUE(eventually([&] { return contents(drawing()) == before; }));
    screen().key("ctrl+q");
    EXPECT_EQ(program().wait(10s), 0);
}

} // namespace
} // namespace desktop
