// The gradient that a tool would give to a shape, found out without a shape that anybody sees.
#include "easel/runtime/CurrentGradient.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/ToolPalette.h"
#include "tests/support/HostTest.h"

#include "host/Gradient.h"
#include "host/Windows.h"

#include <utility>

namespace easel::runtime {
namespace {

class CurrentGradientTest : public tests::HostTest {
  protected:
    using Click = decltype(ToolMethodRec::click);

    std::optional<CGradientData> foundWith(Click click) {
        short row = -1;
        short number = 0;
        AddTool(GetTPaletteFromWindowRef(roloPalette), PaletteElement{5100, 0, 13, 2, 1, {}}, row, number);
        GetTool(number).ToolMethods().click = click;
        return currentGradientOf(*process_.palette().find(number), process_);
    }
};

// Gives the shape that was pressed, the lowest one of the window, a gradient of that angle.
void giveGradient(drawing::Drawing& to, float angle) {
    drawing::Object changed = *to.object(0);
    CGradientData record;
    record.SetAngle(angle);
    changed.setGradient(drawing::ObjectGradient(new CGradient(record)));
    to.amend(0, sealed(std::move(changed)));
}

TEST_F(CurrentGradientTest, IsNoneWhereTheToolDeclinesOrDoesNothing) {
    EXPECT_FALSE(foundWith(nullptr));
    EXPECT_FALSE(foundWith([](DWindow*, const EventRecord&, const TPoint<double>&) { return false; }));
    EXPECT_FALSE(foundWith([](DWindow*, const EventRecord&, const TPoint<double>&) { return true; }))
        << "the shape is still black";
    EXPECT_EQ(process_.activeWindow(), nullptr);
}

TEST_F(CurrentGradientTest, IsTheOneThatTheToolGivesToTheShape) {
    static Process* gProcess = nullptr;
    gProcess = &process_;
    const auto found = foundWith([](DWindow*, const EventRecord&, const TPoint<double>&) {
        giveGradient(gProcess->activeWindow()->drawing(), 33);
        return true;
    });
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Angle(), 33);
}

TEST_F(CurrentGradientTest, IsThatOfTheShapeWhateverTheToolPutsOnTop) {
    const auto found = foundWith([](DWindow* pressed, const EventRecord&, const TPoint<double>&) {
        drawing::Drawing& drawing = pressed->State().window->drawing();
        drawing.insert(1, drawing.object(0));
        giveGradient(drawing, 33);
        return true;
    });
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Angle(), 33);
}

TEST_F(CurrentGradientTest, IsThatOfTheShapeThatTheToolPutsInItsPlace) {
    const auto found = foundWith([](DWindow* pressed, const EventRecord&, const TPoint<double>&) {
        drawing::Drawing& drawing = pressed->State().window->drawing();
        const drawing::ObjectPtr same = drawing.object(0);
        drawing.erase(0);
        drawing.insert(0, same);
        giveGradient(drawing, 33);
        return true;
    });
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Angle(), 33);
}

TEST_F(CurrentGradientTest, IsNoneWhereTheToolDeletesTheShape) {
    EXPECT_FALSE(foundWith([](DWindow* pressed, const EventRecord&, const TPoint<double>&) {
        pressed->State().window->drawing().erase(0);
        return true;
    }));
}

TEST_F(CurrentGradientTest, LeavesTheWindowInFrontThatWasThere) {
    DrawingWindow window(drawing::Drawing::create(100, 50), process_);
    window.activate();
    foundWith([](DWindow*, const EventRecord&, const TPoint<double>&) { return true; });
    EXPECT_EQ(process_.activeWindow(), &window);
}

TEST_F(CurrentGradientTest, TheToolSeesAClickInTheMiddleOfAWindowThatIsInFront) {
    static bool gWasInFront = false;
    static Process* gProcess = nullptr;
    gProcess = &process_;
    static drawing::Point gOffMiddle{1, 1};
    foundWith([](DWindow* pressed, const EventRecord&, const TPoint<double>& where) {
        gWasInFront = gProcess->activeWindow() != nullptr && gProcess->activeWindow()->drawing().size() == 1;
        const drawing::Box all = pressed->State().window->drawing().object(0)->outline.bounds();
        gOffMiddle = {where.h - (all.left + all.right) / 2, where.v - (all.top + all.bottom) / 2};
        return false;
    });
    EXPECT_TRUE(gWasInFront);
    EXPECT_EQ(gOffMiddle, (drawing::Point{0, 0}));
}

} // namespace
} // namespace easel::runtime
