// A click that picks an object of a kind that cannot carry a gradient, which no filter of Easel lets through.
#include "Gradient/tool/CanvasClick.h"
#include "easel/drawing/Drawing.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/HostWindow.h"
#include "host/Windows.h"
#include "tests/unit/gradient/EditorStage.h"

#include <gtest/gtest.h>

// Takes the place of the host's pick in this program: always finds an empty object, which is of no kind.
bool PickObj(DWindow* /*window*/, TPoint<double> /*where*/, long& index, CTessObjList& list) {
    index = 0;
    list = CTessObjList();
    return true;
}

namespace tests {
namespace {

class Listening : public IdleUser {
  public:
    void beep() override { ++beeps; }

    int beeps = 0;
};

TEST(CanvasClick, OnAnObjectThatCannotCarryAGradientBeepsAndIsNotHandled) {
    Listening user;
    EditorStage stage(user);
    easel::runtime::DrawingWindow shown(easel::drawing::Drawing::create(100, 100), stage.process());
    HostWindow state{&shown};
    DWindow window(state);
    EXPECT_FALSE(GradientTool(&window, EventRecord(), {5.0, 5.0}));
    EXPECT_EQ(user.beeps, 1);
}

} // namespace
} // namespace tests
