// The template popup, what is asked about templates, and those that a new user is offered.
#include "tests/desktop/DesktopTest.h"

#include <fstream>
#include <thread>

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
    // The same with a drawing that has one thing replaced.
    void startForTheFirstTimeWith(const std::string& what, const std::string& by) {
        std::string svg = contents(drawing());
        svg.replace(svg.find(what), what.size(), by);
        std::ofstream(drawing()) << svg;
        fs::remove(settings());
        start({drawing().string()});
        waitForColor(kPlain);
        EXPECT_TRUE(getsKeyboard("drawing.svg"));
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

TEST_F(StarterOfferTest, WhatIsToldMeanwhileWaitsForTheAnswer) {
    // A radial gradient whose focus lies outside its circle, and moves with the first change.
    startForTheFirstTimeWith("r=\"138.924440\"", R"(r="50" fx="520" fr="20")");
    screen().key("v");
    screen().key("ctrl+a");
    screen().key("ctrl+shift+r");
    waitForWindow("drawing.svg*");
    const int top = waitForColor(kPlain).top;
    screen().key("alt+a");
    EXPECT_TRUE(eventually([&] { return fs::exists(templates() / "._Wood.GRD"); }));
    // First that there are templates now, then what was to be told.
    screen().key("alt+g");
    std::this_thread::sleep_for(300ms);
    EXPECT_EQ(waitForColor(kPlain).top, top) << "there is one more notice";
    screen().key("alt+g");
    EXPECT_TRUE(eventually([&] { return waitForColor(kPlain).top < top - 5; }));
}

TEST_F(StarterOfferTest, TheQuestionComesAfterWhatADrawingIsToldAbout) {
    startForTheFirstTimeWith("<defs>", "<script>1</script><defs>");
    screen().key("alt+a");
    screen().key("alt+g");
    EXPECT_FALSE(fs::exists(templates() / "Wood.GRD"));
    EXPECT_TRUE(eventually([&] {
        screen().key("alt+a");
        return fs::exists(templates() / "._Wood.GRD");
    }));
}

TEST_F(StarterOfferTest, NobodyIsAskedAnyMoreWhoHasATemplateMeanwhile) {
    startForTheFirstTimeWith("<defs>", "<defs>");
    const Area plain = waitForColor(kPlain);
    const fs::path css = folder() / "ramp.css";
    std::ofstream(css) << "linear-gradient(red, blue)";
    Process import({EASEL_PROGRAM, "templates", "import", css.string()}, environment(),
                   (folder() / "import.log").string());
    ASSERT_EQ(import.wait(10s), 0);
    // The window becomes active again when a dialog over it is gone.
    screen().keyDown("Control_L");
    screen().click({plain.left + 20, plain.top + 20});
    screen().keyUp("Control_L");
    waitForDialog("Gradient");
    closeEditorWith("Escape");
    EXPECT_TRUE(eventually([&] { return waitForColor(kPlain).top < plain.top - 5; }));
    EXPECT_FALSE(isAnswered());
}

class TemplatesTest : public DesktopTest {
  protected:
    fs::path templates() const { return configuration() / "kestrad" / "Gradient Templates"; }
    void import(const std::string& name, const std::string& gradient) {
        const fs::path css = folder() / "ramp.css";
        std::ofstream(css) << gradient;
        Process program({EASEL_PROGRAM, "templates", "import", css.string(), "--name", name}, environment(),
                        (folder() / "import.log").string());
        ASSERT_EQ(program.wait(10s), 0);
    }
    void chooseTemplate(const Window& editor, const std::string& begin) {
        openTemplates(editor);
        screen().type(begin);
        screen().key("Return");
    }
    // Whether all of a row of the list has one color, other than that of the rows above and below it. Of a
    // frame the two sides differ.
    static bool hasLine(const Area& rows) {
        const Picture shown = screen().picture();
        const auto isOfOneColor = [&](int y) {
            for (int x = rows.left; x < rows.right; ++x)
                if (shown.at({x, y}) != shown.at({rows.left, y}))
                    return false;
            return true;
        };
        for (int y = rows.top + 1; y + 1 < rows.bottom; ++y) {
            const std::uint32_t ground = shown.at({rows.left, y - 1});
            if (isOfOneColor(y - 1) && isOfOneColor(y) && isOfOneColor(y + 1) &&
                shown.at({rows.left, y}) != ground && shown.at({rows.left, y + 1}) == ground)
                return true;
        }
        return false;
    }

    // Red, green and blue at equal distances, under that name and under thousands of others.
    void fillTemplates(const std::string& name) {
        import(name, "linear-gradient(to right, #ff0000 0%, #00ff00 50%, #0000ff 100%)\n");
        for (int i = 0; i < 3000; ++i)
            for (const std::string begin : {"", "._"})
                fs::create_hard_link(templates() / (begin + name + ".GRD"),
                                     templates() / (begin + "Blend " + std::to_string(i) + ".GRD"));
    }
};

TEST_F(TemplatesTest, AmongThousandsTypingFindsOneAndItLoads) {
    fillTemplates("Zebra");
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    chooseTemplate(editor, "Zeb");
    EXPECT_TRUE(eventually([&] {
        const std::uint32_t middle = screen().picture().at(onRamp(editor, 0.5));
        return (middle >> 8 & 0xff) > 0xf8 && (middle >> 16) < 8 && (middle & 0xff) < 8;
    })) << "the ramp is green in its middle";
    closeEditorWith("Escape");
}

TEST_F(TemplatesTest, EachHasItsPictureBelowALineAndAHeadingThatCannotBeChosen) {
    constexpr std::uint32_t kPink = 0xfe01c8;
    import("Candy", "linear-gradient(to right, #fe01c8, #fe01c8)");
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    EXPECT_FALSE(screen().picture().find(kPink));
    openTemplates(editor);
    const Area picture = waitForColor(kPink);
    EXPECT_GE(picture.width(), 12);
    EXPECT_GE(picture.height(), 12);
    // The line leaves the margins of its row free.
    const int top = editor.content.top + EditorItems::templates.y + 20;
    EXPECT_TRUE(eventually([&] { return hasLine({picture.right, top, picture.right + 80, picture.top}); }));
    // Past the line and the heading; on the heading Return would choose nothing.
    for (const char* key : {"Home", "Down", "Down", "Return"})
        screen().key(key);
    EXPECT_TRUE(eventually([&] { return screen().picture().at(onRamp(editor, 0.5)) == kPink; }));
    closeEditorWith("Escape");
}

TEST_F(TemplatesTest, WithoutANameNothingIsSavedAndNothingIsLost) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    chooseTemplate(editor, "Sav");
    waitForDialog("Save Template");
    screen().key("Return");
    EXPECT_EQ(messageOf(waitForDialog("Easel")),
              "\u201cName of the template\u201d is empty. Type something, or choose Cancel.");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Easel"));
    EXPECT_TRUE(getsKeyboard("Save Template"));
    EXPECT_TRUE(fs::is_empty(templates()));
    screen().type("Late");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Save Template"));
    EXPECT_TRUE(eventually([&] { return fs::exists(templates() / "Late.GRD"); }));
    closeEditorWith("Escape");
}

TEST_F(TemplatesTest, TheQuestionWhetherToReplaceOneNamesItAndReturnKeepsIt) {
    import("Candy", "linear-gradient(to right, #fe01c8, #fe01c8)");
    const std::string before = contents(templates() / "._Candy.GRD");
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    const auto saveAgain = [&] {
        chooseTemplate(editor, "Sav");
        waitForDialog("Save Template");
        screen().type("Candy");
        screen().key("Return");
        return waitForDialog("Replace Template");
    };
    saveAgain();
    screen().key("Return");
    EXPECT_TRUE(vanishes("Replace Template"));
    EXPECT_TRUE(getsKeyboard("Gradient"));
    EXPECT_EQ(contents(templates() / "._Candy.GRD"), before);
    EXPECT_EQ(messageOf(saveAgain()), "Replace the template of this name?\n\n\u201cCandy.GRD\u201d");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Replace Template"));
    EXPECT_EQ(contents(templates() / "._Candy.GRD"), before);
    closeEditorWith("Escape");
}

TEST_F(TemplatesTest, EscapeInTheListDeletesNothing) {
    import("Candy", "linear-gradient(to right, #fe01c8, #fe01c8)");
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    chooseTemplate(editor, "Del");
    waitForDialog("Delete Templates");
    screen().key("ctrl+a");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Delete Templates"));
    EXPECT_TRUE(getsKeyboard("Gradient"));
    EXPECT_TRUE(fs::exists(templates() / "Candy.GRD"));
    closeEditorWith("Escape");
}

} // namespace
} // namespace desktop
