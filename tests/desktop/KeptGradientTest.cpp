// What the window says about a gradient: what stays of it, what a template leaves behind, where its centre
// went.
#include "tests/desktop/ShapesTest.h"

#include <gmock/gmock.h>

namespace desktop {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class KeptGradientTest : public ShapesTest {
  protected:
    // A circle in the shape's own measures is an ellipse.
    void makeEllipse() const {
        replaceInDrawing(R"(gradientUnits="userSpaceOnUse" cx="420" cy="290" r="138.924440")",
                         R"(cx=".5" cy=".5" r=".5")");
    }
    void makeTranslucent(const std::string& color) const {
        const std::string stop = "stop-color=\"" + color + "\"";
        replaceInDrawing(stop, stop + " stop-opacity=\".5\"");
    }
    void saveTemplate(Spot shape, const std::string& name) {
        const Window editor = openEditor(shape.x, shape.y);
        openTemplates(editor);
        screen().type("Sav");
        screen().key("Return");
        waitForDialog("Save Template");
        screen().type(name);
        screen().key("Return");
        EXPECT_TRUE(vanishes("Save Template"));
        closeEditorWith("Escape");
    }
};

TEST_F(KeptGradientTest, NothingIsToldOfATemplateThatLeavesNothingBehind) {
    startWithDrawing();
    const int top = waitForColor(kPlain).top;
    saveTemplate(kGradMiddle, "Opaque");
    EXPECT_EQ(waitForColor(kPlain).top, top);
}

TEST_F(KeptGradientTest, TheOpacityThatATemplateLeavesBehindIsTold) {
    makeTranslucent("#f0d060");
    startWithDrawing();
    const int top = waitForColor(kPlain).top;
    saveTemplate(kGradMiddle, "Glass");
    EXPECT_TRUE(eventually([&] { return waitForColor(kPlain).top > top + 5; }));
    EXPECT_THAT(notice(), AllOf(HasSubstr("opacity"), Not(HasSubstr("ellipse"))));
}

TEST_F(KeptGradientTest, TheEllipseThatATemplateLeavesBehindIsTold) {
    makeEllipse();
    startWithDrawing();
    const int top = waitForColor(kPlain).top;
    saveTemplate(kRoundMiddle, "Egg");
    EXPECT_TRUE(eventually([&] { return waitForColor(kPlain).top > top + 5; }));
    EXPECT_THAT(notice(), AllOf(HasSubstr("ellipse"), Not(HasSubstr("opacity"))));
}

TEST_F(KeptGradientTest, TheStatusLineSaysWhatStaysOfTheSelectedShapes) {
    makeEllipse();
    makeTranslucent("#f0d060");
    startWithDrawing();
    screen().key("v");
    select({kPlainMiddle});
    const auto nothing = statusLine();
    select({kGradMiddle});
    const auto opacity = statusLineAfter(nothing);
    select({kRoundMiddle});
    const auto ellipse = statusLineAfter(opacity);
    EXPECT_NE(ellipse, nothing);
    select({kGradMiddle, kRoundMiddle});
    const auto both = statusLineAfter(ellipse);
    EXPECT_NE(both, opacity);
    EXPECT_NE(both, nothing);
    select({kPlainMiddle});
    EXPECT_EQ(statusLineAfter(both), nothing);
}

TEST_F(KeptGradientTest, TheStatusLineSaysWhereTheCentreWent) {
    startWithDrawing();
    const Spot one{360, 290};
    const Spot other{450, 310};
    const auto before = statusLine();
    screen().click(onScreen(one.x, one.y));
    const auto first = statusLineAfter(before);
    screen().click(onScreen(other.x, other.y));
    const auto second = statusLineAfter(first);
    EXPECT_NE(second, before);
    screen().click(onScreen(one.x, one.y));
    EXPECT_TRUE(eventually([&] { return statusLine() == first; })) << "the same place again";
}

} // namespace
} // namespace desktop
