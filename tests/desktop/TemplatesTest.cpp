// The template popup when there are very many.
#include "tests/desktop/DesktopTest.h"

#include <fstream>

namespace desktop {
namespace {

namespace fs = std::filesystem;

// The first start, at which nothing was answered yet.
class StarterOfferTest : public DesktopTest {
  protected:
    void startForTheFirstTime() {
        fs::remove(settings());
        start({});
        EXPECT_TRUE(getsKeyboard("Untitled"));
    }
    fs::path settings() const { return configuration() / "kestrad" / "easel.conf"; }
    fs::path templates() const { return configuration() / "kestrad" / "Gradient Templates"; }
    bool isAnswered() const {
        return contents(settings()).find("starterTemplatesAnswered=true") != std::string::npos;
    }
};

TEST_F(StarterOfferTest, TemplatesAreAddedWhenTheyAreWanted) {
    startForTheFirstTime();
    EXPECT_FALSE(fs::exists(templates() / "Wood.GRD")) << "nothing is put there without being asked";
    screen().key("alt+a");
    EXPECT_TRUE(eventually([&] { return fs::exists(templates() / "._Wood.GRD"); }));
    EXPECT_TRUE(fs::exists(templates() / "Clear Sky.GRD"));
    EXPECT_TRUE(eventually([&] { return isAnswered(); }));
    EXPECT_EQ(quit(), 0);
}

TEST_F(StarterOfferTest, ARefusalIsRemembered) {
    startForTheFirstTime();
    screen().key("alt+t");
    EXPECT_TRUE(eventually([&] { return isAnswered(); }));
    EXPECT_EQ(quit(), 0);
    start({});
    EXPECT_TRUE(getsKeyboard("Untitled"));
    screen().key("alt+a");
    EXPECT_EQ(quit(), 0);
    EXPECT_FALSE(fs::exists(templates() / "Wood.GRD"));
}

class TemplatesTest : public DesktopTest {
  protected:
    // Red, green and blue at equal distances, under that name and under thousands of others.
    void fillTemplates(const std::string& name) {
        const fs::path ramp = folder() / "ramp.css";
        std::ofstream(ramp) << "linear-gradient(to right, #ff0000 0%, #00ff00 50%, #0000ff 100%)\n";
        Process import({EASEL_PROGRAM, "templates", "import", ramp.string(), "--name", name}, environment(),
                       (folder() / "import.log").string());
        ASSERT_EQ(import.wait(10s), 0);
        const fs::path templates = configuration() / "kestrad" / "Gradient Templates";
        for (int i = 0; i < 3000; ++i)
            for (const std::string begin : {"", "._"})
                fs::create_hard_link(templates / (begin + name + ".GRD"),
                                     templates / (begin + "Blend " + std::to_string(i) + ".GRD"));
    }
};

TEST_F(TemplatesTest, AmongThousandsTypingFindsOneAndItLoads) {
    fillTemplates("Zebra");
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    openTemplates(editor);
    screen().type("Zeb");
    screen().key("Return");
    EXPECT_TRUE(eventually([&] {
        const std::uint32_t middle = screen().picture().at(onRamp(editor, 0.5));
        return (middle >> 8 & 0xff) > 0xf8 && (middle >> 16) < 8 && (middle & 0xff) < 8;
    })) << "the ramp is green in its middle";
    closeEditorWith("Escape");
}

} // namespace
} // namespace desktop
