// What comes back at the next start.
#include "tests/desktop/DesktopTest.h"

#include <fstream>
#include <thread>

namespace desktop {
namespace {

class SessionTest : public DesktopTest {};

TEST_F(SessionTest, NothingComesBackUnlessTheUserWantsThat) {
    startWithDrawing();
    EXPECT_EQ(quit(), 0);
    start({});
    waitForWindow("Untitled");
    EXPECT_EQ(quit(), 0);
}

TEST_F(SessionTest, FilesZoomToolAndPlaceComeBackAsTheyWere) {
    std::ofstream(configuration() / "kestrad/easel.conf", std::ios::app) << "[session]\nreopen=true\n";
    startWithDrawing();
    const int before = waitForColor(kPlain).width();
    screen().key("v");
    screen().key("ctrl+plus");
    int zoomed = before;
    EXPECT_TRUE(eventually([&] { return (zoomed = waitForColor(kPlain).width()) > before; }));
    const Area place = drawingWindow().content;
    EXPECT_EQ(quit(), 0);
    start({});
    EXPECT_EQ(drawingWindow().content.width(), place.width());
    EXPECT_TRUE(eventually([&] { return waitForColor(kPlain).width() == zoomed; }));
    // The tool selects: a click on the shape gives it no gradient.
    screen().click(waitForColor(kPlain).middle());
    std::this_thread::sleep_for(300ms);
    EXPECT_TRUE(screen().picture().find(kPlain));
    EXPECT_EQ(quit(), 0);
}

} // namespace
} // namespace desktop
