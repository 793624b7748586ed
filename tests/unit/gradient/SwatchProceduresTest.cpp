// What the editor's drawing procedures do to the port, to its pixels and to the flag of the preview.
#include "Gradient/editor/DrawingScopes.h"
#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/EditorState.h"
#include "Gradient/editor/Swatches.h"
#include "easel/paint/Port.h"
#include "easel/runtime/Dialog.h"
#include "tests/unit/gradient/DrawnGradient.h"
#include "tests/unit/gradient/EditorStage.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace tests {
namespace {

using easel::paint::PixelRect;
using easel::paint::Port;
using easel::paint::PortState;
using testing::ElementsAre;

class SwatchProcedures : public testing::Test {
  protected:
    SwatchProcedures() : stage_(user_), dialog_(TessGetNewDialog(kEditorDialog, nullptr, nullptr)) {
        gDialogActiveGradient = gradientOf({{{1, 2, 3}, 0.0}, {{4, 5, 6}, 1.0}});
        gDialogActivePercent = 0.0;
        SetPortDialogPort(dialog_);
        PortState& state = port().state();
        state.foreground = {11, 22, 33};
        state.pen = {{7, 8}, {3, 2}, easel::paint::PenMode::Invert, {1, 2, 3, 4, 5, 6, 7, 8}};
        state.clip = {.right = 399, .bottom = 400};
        gPolygonEvents.clear();
    }
    ~SwatchProcedures() override { DisposeDialog(dialog_); }

    Port& port() const { return easel::runtime::Dialog::from(dialog_).port(); }

    template <typename Draw> void expectThePortKept(Draw draw, const char* what) {
        const PortState before = port().state();
        draw();
        EXPECT_EQ(port().state(), before) << what;
        EXPECT_EQ(&stage_.process().ports().target(), &port()) << what;
    }

    // The host's calls made while something is drawn.
    template <typename Draw> std::vector<std::string> callsOf(Draw draw) {
        easel::runtime::Journal& journal = stage_.process().journal();
        journal.switchOn();
        draw();
        journal.switchOff();
        return journal.take();
    }

    IdleUser user_;
    EditorStage stage_;
    DialogRef dialog_;
};

TEST_F(SwatchProcedures, EachOfThemLeavesColorPenAndClipOfThePortAsTheyWere) {
    // Each on its own, since those that call others would put back what those left.
    expectThePortKept([&] { DrawTriangleTick({50, 50}, 5, {9, 9, 9}, kOpenTick); }, "open marker");
    expectThePortKept([&] { DrawTriangleTick({50, 50}, 5, {9, 9, 9}, kFilledTick); }, "filled marker");
    expectThePortKept([&] { DrawTicks({16, 128}, 200, gDialogActiveGradient); }, "row of markers");
    expectThePortKept([&] { UpdateColorRect(dialog_, kColorItem); }, "color");
    expectThePortKept([&] { UpdateGradientRect(dialog_, kRampItem); }, "ramp");
    expectThePortKept([&] { UpdatePreviewRect(dialog_, kPreviewItem); }, "preview");
}

TEST_F(SwatchProcedures, ThePortIsAsItWasAlsoWhenDrawingFails) {
    const FailingDrawing failing;
    expectThePortKept([&] { EXPECT_THROW(UpdateGradientRect(dialog_, kRampItem), DrawingFailed); }, "ramp");
    EXPECT_THROW(UpdatePreviewRect(dialog_, kPreviewItem), DrawingFailed);
    EXPECT_FALSE(gDrawingToDialog);
}

TEST_F(SwatchProcedures, TheFlagIsRaisedWhileThePreviewIsDrawnAndForNothingElse) {
    UpdatePreviewRect(dialog_, kPreviewItem);
    EXPECT_TRUE(gDrawn.value().drawingToDialog);
    EXPECT_FALSE(gDrawingToDialog);
    UpdateGradientRect(dialog_, kRampItem);
    EXPECT_FALSE(gDrawn.value().drawingToDialog);
    const StValueChanger<bool> raised(gDrawingToDialog, true);
    UpdatePreviewRect(dialog_, kPreviewItem);
    EXPECT_TRUE(gDrawingToDialog) << "as it was, not off";
}

TEST_F(SwatchProcedures, ThePreviewsPolygonIsMadeBeforeTheFlagIsRaisedAndFreedBeforeItIsPutBack) {
    gDialogActiveGradient.SetType(kRadialGradient); // a linear one needs polygons of its own
    UpdatePreviewRect(dialog_, kPreviewItem);
    EXPECT_THAT(gPolygonEvents, ElementsAre(PolygonEvent{PolygonEvent::What::Made, false},
                                            PolygonEvent{PolygonEvent::What::Freed, true}));
}

TEST_F(SwatchProcedures, TheRampIsDrawnLinearAtAngleZeroAndThePreviewAsTheGradientIs) {
    gDialogActiveGradient.SetType(kRadialGradient);
    gDialogActiveGradient.SetAngle(33.0F);
    UpdateGradientRect(dialog_, kRampItem);
    EXPECT_EQ(gDrawn.value().record.Type(), kLinearGradient);
    EXPECT_EQ(gDrawn.value().record.Angle(), 0.0F);
    UpdatePreviewRect(dialog_, kPreviewItem);
    EXPECT_EQ(gDrawn.value().record.Type(), kRadialGradient);
    EXPECT_EQ(gDrawn.value().record.Angle(), 33.0F);
}

// The smallest rectangle around the pixels that are not `color`.
PixelRect changedPixels(Port& port, std::uint32_t color) {
    PixelRect changed{.left = port.imageWidth(), .top = port.imageHeight()};
    for (int y = 0; y < port.imageHeight(); ++y)
        for (int x = 0; x < port.imageWidth(); ++x)
            if (port.pixels()[y * port.imageWidth() + x] != color)
                changed = {.left = std::min(changed.left, x),
                           .top = std::min(changed.top, y),
                           .right = std::max(changed.right, x + 1),
                           .bottom = std::max(changed.bottom, y + 1)};
    return changed;
}

TEST_F(SwatchProcedures, TheBandOfTheMarkersIsErasedFromOneBelowTheRampToTwelveBelowIt) {
    constexpr std::uint32_t kPainted = 0xff123456;
    std::fill_n(port().pixels(), port().imageWidth() * port().imageHeight(), kPainted);
    port().state().clip = port().bounds();
    gDialogActivePercent = 0.5;
    DrawTicks({16, 128}, 200, gradientOf({{{0, 0, 0}, 0.5}}));
    EXPECT_EQ(changedPixels(port(), kPainted),
              (PixelRect{.left = 9, .top = 129, .right = 223, .bottom = 140}));
}

TEST_F(SwatchProcedures, AFilledMarkerHasNoHolesWhateverThePensPatternWas) {
    port().state().clip = port().bounds();
    constexpr short kSize = 40;
    DrawTriangleTick({100, 50}, kSize, {0, 0, 0}, kFilledTick);
    for (int row = 0; row <= kSize; ++row)
        for (int column = -row; column <= row; ++column)
            ASSERT_EQ(port().pixels()[(50 + row) * port().imageWidth() + 100 + column], 0xff000000u)
                << column << ' ' << row;
}

TEST_F(SwatchProcedures, AMarkerIsDrawnStepByStepInItsOwnColorAndPen) {
    const auto marker = [](KTickFill fill) { DrawTriangleTick({50, 60}, 5, {9, 9, 9}, fill); };
    std::vector<std::string> calls = callsOf([&] { marker(kFilledTick); });
    EXPECT_THAT(calls,
                ElementsAre("QD::GetForeColor()", "QD::GetPenState()", "QD::RGBForeColor()",
                            "QD::PenSize(1, 1)", "QD::PenMode(8)", "QD::PenPat()", "QD::OpenPoly()",
                            "QD::MoveTo(50, 60)", "QD::LineTo(55, 65)", "QD::LineTo(45, 65)",
                            "QD::LineTo(50, 60)", "QD::ClosePoly()", "QD::PaintPoly()", "QD::FramePoly()",
                            "QD::KillPoly()", "QD::SetPenState()", "QD::RGBForeColor()"));
    std::erase(calls, "QD::PaintPoly()");
    EXPECT_EQ(callsOf([&] { marker(kOpenTick); }), calls);
}

TEST_F(SwatchProcedures, TheRowOfMarkersSetsColorAndPenOnceItIsErasedAndUnderlinesLast) {
    gDialogActivePercent = 0.5;
    const auto calls = callsOf([] { DrawTicks({16, 128}, 200, gradientOf({{{0, 0, 0}, 0.25}})); });
    ASSERT_GT(calls.size(), 9u);
    EXPECT_THAT(std::vector(calls.begin(), calls.begin() + 5),
                ElementsAre("QD::EraseRect()", "QD::GetForeColor()", "QD::GetPenState()",
                            "QD::RGBForeColor()", "QD::PenSize(1, 1)"));
    EXPECT_THAT(std::vector(calls.end() - 4, calls.end()),
                ElementsAre("QD::MoveTo(111, 137)", "QD::LineTo(121, 137)", "QD::SetPenState()",
                            "QD::RGBForeColor()"));
}

TEST_F(SwatchProcedures, TheColorSwatchIsPaintedThenFramed) {
    EXPECT_THAT(callsOf([&] { UpdateColorRect(dialog_, kColorItem); }),
                ElementsAre("GetDialogItemBounds(6)", "DrawDropShadow()", "QD::GetForeColor()",
                            "QD::RGBForeColor()", "QD::PaintRect()", "QD::RGBForeColor()", "QD::FrameRect()",
                            "QD::RGBForeColor()"));
}

TEST_F(SwatchProcedures, ThePreviewIsComposedOffTheScreenAndCopiedInOneStep) {
    gDialogActiveGradient.SetType(kRadialGradient);
    EXPECT_THAT(callsOf([&] { UpdatePreviewRect(dialog_, kPreviewItem); }),
                ElementsAre("GetDialogItemBounds(7)", "CSimplePixMap(32)", "FRectToFPoly()",
                            "CSimplePixMap::BeginDrawing()", "CSimplePixMap::GetGEnv()", "CreatePolyPath()",
                            "CGPathRelease()", "QD::RGBForeColor()", "QD::FrameRect()",
                            "CSimplePixMap::EndDrawing()", "CSimplePixMap::CopyFrom()", "KillFPoly()"));
}

TEST_F(SwatchProcedures, TheRampIsComposedOffTheScreenAndItsMarkersFollow) {
    auto calls = callsOf([&] { UpdateGradientRect(dialog_, kRampItem); });
    ASSERT_GT(calls.size(), 20u);
    EXPECT_THAT(std::vector(calls.begin(), calls.begin() + 7),
                ElementsAre("GetDialogItemBounds(4)", "QD::GetForeColor()", "CSimplePixMap(32)",
                            "FRectToFPoly()", "CSimplePixMap::BeginDrawing()", "CSimplePixMap::GetGEnv()",
                            "CreatePolyPath()"));
    const auto framed = std::find(calls.begin(), calls.end(), "QD::FrameRect()");
    ASSERT_GT(calls.end() - framed, 4);
    EXPECT_THAT(std::vector(framed - 1, framed + 4),
                ElementsAre("QD::RGBForeColor()", "QD::FrameRect()", "CSimplePixMap::EndDrawing()",
                            "CSimplePixMap::CopyFrom()", "QD::EraseRect()"));
    EXPECT_THAT(std::vector(calls.end() - 2, calls.end()), ElementsAre("KillFPoly()", "QD::RGBForeColor()"));
}

TEST(DrawingScopes, AForegroundColorComesBackWhateverWasSetMeanwhile) {
    IdleUser user;
    const EditorStage stage(user);
    const DialogRef dialog = TessGetNewDialog(kEditorDialog, nullptr, nullptr);
    SetPortDialogPort(dialog);
    const RGBColor before{1, 2, 3};
    const RGBColor other{4, 5, 6};
    QD::RGBForeColor(&before);
    {
        const StForeColor color;
        QD::RGBForeColor(&other);
    }
    EXPECT_EQ(CurrentForeColor(), before);
    { const StForeColor color(other); }
    EXPECT_EQ(CurrentForeColor(), other);
    DisposeDialog(dialog);
}

} // namespace
} // namespace tests
