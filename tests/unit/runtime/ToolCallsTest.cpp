// What a tool is told when the host calls it, and what its call leaves behind.
#include "easel/runtime/ToolCalls.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/ToolPalette.h"
#include "host/Mouse.h"
#include "host/Windows.h"
#include "tests/support/HostTest.h"
#include "tests/support/IdleUser.h"

#include <gtest/gtest.h>

namespace {

namespace drawing = easel::drawing;
namespace runtime = easel::runtime;
using runtime::ToolOutcome;

void insertBox(drawing::Drawing& into) {
    drawing::Object object;
    object.kind = drawing::Kind::Rect;
    object.outline = drawing::rectanglePath({10, 10, 20, 20});
    into.insert(into.size(), sealed(std::move(object)));
}

class ToolCallsTest : public tests::HostTest {
  protected:
    ToolOutcome click() { return clickWithTool(tool_, window_, {30, 40}); }

    tests::IdleUser user_;
    runtime::UserScope inFront_{process_, user_};
    runtime::DrawingWindow window_{drawing::Drawing::create(100, 50), process_};
    HostTool tool_{1, PaletteElement{}};
};

TEST_F(ToolCallsTest, AToolIsToldThatTheButtonWentDownWhereItDid) {
    tool_.methods.click = [](DWindow*, const EventRecord& event, const TPoint<double>& where) {
        return event.what == 1 && where.h == 30 && where.v == 40;
    };
    EXPECT_EQ(click(), ToolOutcome::Handled);
}

TEST_F(ToolCallsTest, AToolMayDeclineAPressOrHaveNothingToCall) {
    tool_.methods.click = [](DWindow*, const EventRecord&, const TPoint<double>&) { return false; };
    EXPECT_EQ(click(), ToolOutcome::Declined);
    tool_.methods.click = nullptr;
    EXPECT_EQ(click(), ToolOutcome::Declined);
    tool_.methods.options = nullptr;
    runtime::openToolOptions(tool_);
    tool_.methods.cursor = nullptr;
    updateToolCursor(tool_, window_);
    EXPECT_EQ(window_.cursor(), std::nullopt);
}

TEST_F(ToolCallsTest, WhatChangesAfterAPressIsNotUndoneWithIt) {
    tool_.methods.click = [](DWindow* pressed, const EventRecord&, const TPoint<double>&) {
        pressed->SetUndo(3);
        insertBox(pressed->State().window->drawing());
        return true;
    };
    EXPECT_EQ(click(), ToolOutcome::Handled);
    insertBox(window_.drawing());
    EXPECT_EQ(window_.drawing().undoLevels(), 1U);
    EXPECT_TRUE(window_.drawing().undo());
    EXPECT_EQ(window_.drawing().size(), 1U);
}

TEST_F(ToolCallsTest, OptionsAndCursorAreTheTools) {
    tool_.methods.options = [] { SetGridSnap(true); };
    runtime::openToolOptions(tool_);
    EXPECT_TRUE(GetGridSnap());
    tool_.methods.cursor = [](DWindow* under) { under->SetIDCursor(606); };
    updateToolCursor(tool_, window_);
    EXPECT_EQ(window_.cursor(), 606);
}

} // namespace
