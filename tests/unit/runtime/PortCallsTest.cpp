// The drawing calls of the interface: what they do to the current port, and what is told by them of the items
// of a dialog.
#include "easel/runtime/Dialog.h"
#include "easel/runtime/HostGraphics.h"
#include "host/Drawing.h"
#include "tests/support/IdleUser.h"
#include "tests/unit/runtime/KindsDialog.h"

#include <gmock/gmock.h>

#include <optional>

namespace tests {
namespace {

namespace drawing = easel::drawing;
namespace paint = easel::paint;
namespace runtime = easel::runtime;
using testing::ElementsAre;

constexpr std::uint32_t kBlack = 0xff000000;
constexpr RGBColor kRed{0xffff, 0, 0};

class HearingUser : public IdleUser {
  public:
    void beep() override { ++beeps; }
    void setDialogCursor(long id) override { cursor = id; }

    int beeps = 0;
    long cursor = 0;
};

class PortCallsTest : public KindsDialogTest {
  protected:
    PortCallsTest() { SetPortDialogPort(dialog_); }
    ~PortCallsTest() override { DisposeDialog(dialog_); }

    paint::Port& port() { return process_.ports().target(); }
    runtime::Dialog& dialog() { return runtime::Dialog::from(dialog_); }
    const runtime::ItemContent& content() { return dialog().item(kUserItem)->content; }
    // A pixel of the dialog, also while another port is current.
    std::uint32_t pixel(int x, int y) {
        return dialog().port().pixels()[y * dialog().port().imageWidth() + x];
    }
    bool isPaper(int x, int y) { return pixel(x, y) == (0xff000000 | dialog().screen().theme.background); }
    bool isErased(int x, int y) { return pixel(x, y) == (0xff000000 | dialog().screen().theme.erased); }

    // A square of four pixels, which the caller gives back.
    static OpaquePolyHandle* squareAt(short h, short v) {
        OpaquePolyHandle* const polygon = QD::OpenPoly();
        QD::MoveTo(h, v);
        for (const auto& [right, down] : {std::pair{4, 0}, {4, 4}, {0, 4}, {0, 0}})
            QD::LineTo(static_cast<short>(h + right), static_cast<short>(v + down));
        QD::ClosePoly();
        return polygon;
    }

    HearingUser user_;
    runtime::UserScope inFront_{process_, user_};
    DialogRef dialog_ = newDialog();
};

TEST_F(PortCallsTest, ThePenIsReadAsItIsAndSetAsAWhole) {
    PenState pen;
    pen.location.Set(3, 4);
    pen.size.Set(5, 6);
    pen.mode = kPatternXor;
    pen.pattern = {{1, 2, 3, 4, 5, 6, 7, 8}};
    QD::SetPenState(&pen);
    const paint::Pen expected{{3, 4}, {5, 6}, paint::PenMode::Invert, {1, 2, 3, 4, 5, 6, 7, 8}};
    EXPECT_EQ(port().state().pen, expected);
    PenState read;
    QD::GetPenState(&read);
    EXPECT_EQ(read.location, pen.location);
    EXPECT_EQ(read.size, pen.size);
    EXPECT_EQ(read.mode, pen.mode);
    EXPECT_THAT(read.pattern.pat, testing::ElementsAreArray(pen.pattern.pat));
}

TEST_F(PortCallsTest, ThePenIsSetPartByPart) {
    const paint::Pen before = port().state().pen;
    QD::PenSize(3, 2);
    EXPECT_EQ(port().state().pen.size, (paint::PixelPoint{3, 2}));
    QD::PenMode(kPatternXor);
    EXPECT_EQ(port().state().pen.mode, paint::PenMode::Invert);
    const Pattern gray{{0x55, 0xaa, 0x55, 0xaa, 0x55, 0xaa, 0x55, 0xaa}};
    QD::PenPat(&gray);
    EXPECT_THAT(port().state().pen.pattern, testing::ElementsAreArray(gray.pat));
    QD::MoveTo(7, 8);
    EXPECT_EQ(port().state().pen.location, (paint::PixelPoint{7, 8}));
    QD::MoveTo(TPoint<double>{9.4, 9.6});
    EXPECT_EQ(port().state().pen.location, (paint::PixelPoint{9, 10}));
    EXPECT_NE(port().state().pen, before);
}

TEST_F(PortCallsTest, TheColorIsThatOfTheCurrentPort) {
    const RGBColor color{0x1234, 0x5678, 0x9abc};
    QD::RGBForeColor(&color);
    EXPECT_EQ(port().state().foreground, (drawing::Rgb16{0x1234, 0x5678, 0x9abc}));
    RGBColor read{};
    QD::GetForeColor(&read);
    EXPECT_EQ(read, color);
}

TEST_F(PortCallsTest, RectanglesArePaintedErasedAndFramed) {
    QD::PaintRect({2, 3, 6, 9});
    EXPECT_EQ(pixel(3, 2), kBlack);
    EXPECT_EQ(pixel(8, 5), kBlack);
    EXPECT_TRUE(isPaper(9, 5));
    EXPECT_TRUE(isPaper(8, 6));
    QD::EraseRect({3, 4, 5, 8});
    EXPECT_TRUE(isErased(4, 3));
    EXPECT_TRUE(isErased(7, 4));
    EXPECT_EQ(pixel(3, 2), kBlack);
    QD::EraseRect({2, 3, 6, 9});
    QD::FrameRect({2, 3, 6, 9});
    EXPECT_EQ(pixel(3, 2), kBlack);
    EXPECT_EQ(pixel(8, 5), kBlack);
    EXPECT_TRUE(isErased(5, 4));
}

TEST_F(PortCallsTest, ALineGoesFromWhereThePenIs) {
    QD::MoveTo(2, 3);
    QD::LineTo(6, 3);
    EXPECT_EQ(pixel(2, 3), kBlack);
    EXPECT_EQ(pixel(6, 3), kBlack);
    QD::LineTo(TPoint<double>{6.4, 7.6});
    EXPECT_EQ(pixel(6, 8), kBlack);
    EXPECT_TRUE(isPaper(2, 8));
}

TEST_F(PortCallsTest, APolygonIsPaintedOrFramedAndNotDrawnAsItIsRecorded) {
    OpaquePolyHandle* const square = squareAt(2, 3);
    EXPECT_TRUE(isPaper(2, 3));
    QD::FramePoly(square);
    EXPECT_EQ(pixel(2, 3), kBlack);
    EXPECT_TRUE(isPaper(4, 5)) << "it is no more than framed";
    QD::PaintPoly(square);
    EXPECT_EQ(pixel(4, 5), kBlack);
    QD::KillPoly(square);
}

TEST_F(PortCallsTest, APolygonThatIsNoneIsNotDrawn) {
    QD::PaintPoly(nullptr);
    QD::FramePoly(nullptr);
    QD::KillPoly(nullptr);
    EXPECT_TRUE(port().takeDamage().empty());
}

TEST_F(PortCallsTest, NothingIsDrawnBesideTheClipWhileItLasts) {
    const paint::PixelRect before = port().state().clip;
    {
        const StClipRgnState clip;
        QD::ClipRect({0, 0, 9, 4});
        QD::PaintRect({2, 2, 6, 6});
    }
    EXPECT_EQ(pixel(3, 3), kBlack);
    EXPECT_TRUE(isPaper(4, 3));
    EXPECT_EQ(port().state().clip, before);
}

TEST_F(PortCallsTest, PenAndColorsArePutBackAtTheEndOfAScope) {
    const paint::PortState before = port().state();
    {
        const StThemeDrawingState state;
        QD::RGBForeColor(&kRed);
        QD::PenSize(3, 3);
        port().state().background = 0x123456;
    }
    EXPECT_EQ(port().state(), before);
}

TEST_F(PortCallsTest, ThePortIsPutBackAtTheEndOfAScopeUnlessItIsGone) {
    paint::Port* const before = process_.ports().current();
    ASSERT_NE(before, nullptr);
    {
        const StGrafPortSaver saver;
        QD::SetPort(nullptr);
        EXPECT_EQ(process_.ports().current(), nullptr);
    }
    EXPECT_EQ(process_.ports().current(), before);
    {
        const StGrafPortSaver saver;
        DisposeDialog(dialog_);
    }
    EXPECT_EQ(process_.ports().current(), nullptr);
}

TEST_F(PortCallsTest, AnItemShowsTheColorThatAllOfItIsPaintedWith) {
    QD::RGBForeColor(&kRed);
    TRect<short> bounds = GetDialogItemBounds(dialog_, kUserItem);
    EXPECT_EQ(bounds, TRect<short>(130, 10, 150, 90));
    bounds.Inset(1, 1);
    QD::PaintRect(bounds);
    EXPECT_FALSE(content().color) << "not all of it";
    bounds.Outset(1, 1);
    QD::PaintRect(bounds);
    EXPECT_EQ(content().color, (drawing::Rgb16{0xffff, 0, 0}));
}

TEST_F(PortCallsTest, AnItemHasTheMarksThatAreFramedInItUntilTheyAreErased) {
    OpaquePolyHandle* const one = squareAt(20, 135);
    OpaquePolyHandle* const other = squareAt(40, 135);
    QD::FramePoly(one);
    QD::PaintPoly(other);
    EXPECT_THAT(content().marks, ElementsAre(paint::PixelPoint{20, 135}));
    EXPECT_EQ(content().filledMark, (paint::PixelPoint{40, 135}));
    QD::EraseRect({130, 10, 150, 30});
    EXPECT_TRUE(content().marks.empty());
    EXPECT_TRUE(content().filledMark);
    QD::KillPoly(one);
    QD::KillPoly(other);
}

TEST_F(PortCallsTest, DrawingBesideItemsAndPolygonsWithoutLinesTellsNothingOfThem) {
    OpaquePolyHandle* const empty = QD::OpenPoly();
    QD::ClosePoly();
    QD::FramePoly(empty);
    QD::PaintPoly(empty);
    QD::KillPoly(empty);
    OpaquePolyHandle* const beside = squareAt(195, 5);
    QD::FramePoly(beside);
    QD::PaintPoly(beside);
    QD::KillPoly(beside);
    EXPECT_TRUE(content().marks.empty());
    EXPECT_FALSE(content().filledMark);
}

TEST_F(PortCallsTest, WhatIsDrawnBesideADialogIsNowhere) {
    QD::SetPort(nullptr);
    QD::RGBForeColor(&kRed);
    QD::PaintRect(GetDialogItemBounds(dialog_, kUserItem));
    QD::EraseRect({0, 0, 200, 200});
    OpaquePolyHandle* const square = squareAt(20, 135);
    QD::FramePoly(square);
    QD::PaintPoly(square);
    QD::KillPoly(square);
    EXPECT_FALSE(content().color);
    EXPECT_TRUE(content().marks.empty());
    EXPECT_TRUE(dialog().port().takeDamage().empty());
}

TEST_F(PortCallsTest, AShadowHasTheColorOfTheDialogOrOfNoDesktop) {
    runtime::DialogScreen screen;
    screen.theme.shadow = 0x123456;
    dialog().setScreen(screen);
    DrawDropShadow({10, 10, 20, 20});
    EXPECT_EQ(pixel(21, 19), 0xff123456);
    EXPECT_EQ(pixel(15, 15), 0xff000000 | screen.theme.background);
    CSimplePixMap image({0, 0, 40, 40}, 32);
    image.BeginDrawing();
    DrawDropShadow({10, 10, 20, 20});
    EXPECT_EQ(port().pixels()[19 * port().imageWidth() + 21], 0xff000000 | runtime::DialogTheme{}.shadow);
    image.EndDrawing();
}

class GradientCallsTest : public PortCallsTest {
  protected:
    // The bounds of the user item, which the caller gives back.
    const CGPath* itemPath() {
        const CFPolygonRef polygon = FRectToFPoly(TRect<double>(GetDialogItemBounds(dialog_, kUserItem)));
        const CGPath* const path = CreatePolyPath(polygon);
        KillFPoly(polygon);
        return path;
    }
    // From red to red, as it lies on the item.
    static CGradientData red() {
        CGradientData gradient;
        gradient.SetStart({10, 130});
        gradient.SetEnd({90, 130});
        for (CGradientColor& stop : gradient.ColorList())
            stop.SetColor(kRed);
        return gradient;
    }
};

TEST_F(GradientCallsTest, AnImageIsFilledAndCopiedToWhereItLies) {
    CSimplePixMap image(GetDialogItemBounds(dialog_, kUserItem), 32);
    const CGPath* const path = itemPath();
    image.BeginDrawing();
    image.GetGEnv()->CGContextDrawGradient(path, red());
    EXPECT_TRUE(isPaper(15, 135)) << "it is the image that is drawn into";
    image.EndDrawing();
    EXPECT_TRUE(isPaper(15, 135));
    image.CopyFrom();
    EXPECT_EQ(pixel(15, 135), 0xffff0000);
    EXPECT_TRUE(isPaper(9, 135));
    CGPathRelease(path);
}

TEST_F(GradientCallsTest, AnImageThatIsMadeWithoutAPortFitsADialogThatIsNotEnlarged) {
    QD::SetPort(nullptr);
    CSimplePixMap image({0, 0, 20, 20}, 32);
    image.BeginDrawing();
    QD::PaintRect({5, 5, 10, 10});
    image.EndDrawing();
    SetPortDialogPort(dialog_);
    image.CopyFrom();
    EXPECT_EQ(pixel(5, 5), kBlack);
    EXPECT_EQ(pixel(9, 9), kBlack);
    EXPECT_NE(pixel(10, 10), kBlack);
}

TEST_F(GradientCallsTest, AnItemShowsTheGradientThatIsCopiedToIt) {
    CSimplePixMap image(GetDialogItemBounds(dialog_, kUserItem), 32);
    const CGPath* const path = itemPath();
    image.CopyFrom();
    EXPECT_FALSE(content().gradient) << "there is none in it yet";
    image.BeginDrawing();
    image.GetGEnv()->CGContextDrawGradient(path, red());
    image.EndDrawing();
    image.CopyFrom();
    ASSERT_TRUE(content().gradient);
    EXPECT_EQ(content().gradient->area,
              (paint::PixelRect{.left = 10, .top = 130, .right = 90, .bottom = 150}));
    EXPECT_EQ(content().gradient->record.End(), TPoint<double>(90, 130));
    CGPathRelease(path);
}

TEST_F(GradientCallsTest, WithoutAPathOrAColorNothingIsFilled) {
    CSimplePixMap image(GetDialogItemBounds(dialog_, kUserItem), 32);
    const CGPath* const path = itemPath();
    CGradientData none = red();
    none.ColorList().clear();
    image.BeginDrawing();
    image.GetGEnv()->CGContextDrawGradient(nullptr, red());
    image.GetGEnv()->CGContextDrawGradient(path, none);
    EXPECT_FALSE(image.GetGEnv()->State().gradient);
    image.EndDrawing();
    image.CopyFrom();
    EXPECT_FALSE(content().gradient);
    EXPECT_NE(pixel(15, 135), 0xffff0000);
    CGPathRelease(path);
    CGPathRelease(nullptr);
}

TEST_F(PortCallsTest, SoundAndCursorAreTheUsers) {
    SysBeep(1);
    EXPECT_EQ(user_.beeps, 1);
    SetIDCursor(5001);
    EXPECT_EQ(user_.cursor, 5001);
}

} // namespace
} // namespace tests
