// The gradient that a tool would give to a shape, found out without a shape that anybody sees.
#include "easel/runtime/CurrentGradient.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/ToolPalette.h"
#include "tests/support/HostTest.h"

#include "host/Gradient.h"

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
        drawing::Drawing& drawing = gProcess->activeWindow()->drawing();
        drawing::Object changed = *drawing.object(0);
        CGradientData record;
        record.SetAngle(33);
        changed.setGradient(drawing::ObjectGradient(new CGradient(record)));
        drawing.amend(0, sealed(std::move(changed)));
        return true;
    });
    ASSERT_TRUE(found);
    EXPECT_EQ(found->Angle(), 33);
}

TEST_F(CurrentGradientTest, TheToolSeesAClickInTheMiddleOfAWindowThatIsInFront) {
    static bool gWasInFront = false;
    static Process* gProcess = nullptr;
    gProcess = &process_;
    foundWith([](DWindow*, const EventRecord&, const TPoint<double>&) {
        gWasInFront = gProcess->activeWindow() != nullptr && gProcess->activeWindow()->drawing().size() == 1;
        return false;
    });
    EXPECT_TRUE(gWasInFront);
}

} // namespace
} // namespace easel::runtime
