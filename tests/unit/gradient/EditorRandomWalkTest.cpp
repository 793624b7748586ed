// A user who does anything at all in the editor, and what must hold whatever is done.
#include "Gradient/ModalDialogs.h"
#include "Gradient/TemplateUtil/TemplateStore.h"
#include "Gradient/editor/EditorItems.h"
#include "Gradient/editor/EditorSession.h"
#include "Gradient/editor/Swatches.h"
#include "easel/paint/Port.h"
#include "easel/runtime/Alert.h"
#include "easel/runtime/DeletionList.h"
#include "easel/runtime/Dialog.h"
#include "tests/unit/gradient/EditorStage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <random>

namespace tests {
namespace {

using easel::runtime::Answer;
using easel::runtime::Dialog;
using easel::runtime::MouseState;

constexpr int kActions = 20000;
constexpr int kNameDialog = 5206;

bool sameBits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool equal(const CGradientData& a, const CGradientData& b) {
    return a.Type() == b.Type() && a.Angle() == b.Angle() && a.Start() == b.Start() && a.End() == b.End() &&
           std::equal(a.ColorList().begin(), a.ColorList().end(), b.ColorList().begin(), b.ColorList().end(),
                      [](const CGradientColor& one, const CGradientColor& other) {
                          return one.ColorRGB() == other.ColorRGB() &&
                                 sameBits(one.Percent(), other.Percent());
                      });
}

class RandomUser : public IdleUser {
  public:
    explicit RandomUser(std::uint32_t seed) : random_(seed) {}

    // Edits the gradient until the session ends.
    void edit(CGradientData& gradient) {
        caller_ = &gradient;
        untouched_ = gradient;
        hadTwo_ = false;
        colorIsStale_ = false;
        const bool confirmed = ModalEditGradient(gradient);
        EXPECT_TRUE(equal(gradient, confirmed ? gDialogActiveGradient : untouched_));
    }
    int actions() const { return actions_; }

    MouseState mouse() override { return mouse_; }
    MouseState waitWhileDown() override {
        moveOrRelease();
        return mouse_;
    }
    MouseState waitForMove(easel::drawing::Point from) override {
        if (mouse_.down && mouse_.at == from)
            moveOrRelease();
        return mouse_;
    }
    bool keyIsDown(std::uint16_t) override { return below(2) == 0; }
    void dialogShown(Dialog& dialog) override {
        if (dialog.id() != kNameDialog)
            opened_ = dialog.port().state();
    }

    std::int16_t nextHit(Dialog& dialog) override {
        mouse_.down = false;
        if (dialog.id() != kNameDialog)
            checkInvariants(dialog);
        while (!dialog.hasHit()) {
            ++actions_;
            if (dialog.id() == kNameDialog)
                nameTemplate(dialog);
            else
                act(dialog);
        }
        return static_cast<std::int16_t>(*dialog.takeHit());
    }
    Answer confirm(const easel::runtime::Alert&) override { return below(3) == 0 ? Answer::No : Answer::Yes; }
    std::optional<RGBColor> pickColor(const std::string&, const RGBColor& start) override {
        EXPECT_TRUE(std::any_of(stops().begin(), stops().end(),
                                [&](const CGradientColor& stop) { return stop.ColorRGB() == start; }));
        if (below(3) == 0)
            return std::nullopt;
        return RGBColor{channel(), channel(), channel()};
    }
    void runDeletion(easel::runtime::DeletionList& list) override {
        while (list.isOpen()) {
            std::vector<int> rows;
            for (int row = 0; row < list.count(); ++row)
                if (below(2) == 0)
                    rows.push_back(row);
            list.select(rows);
            list.command(below(2) == 0 ? easel::runtime::DeletionCommand::Ok
                                       : easel::runtime::DeletionCommand::Cancel);
        }
    }

  private:
    static const std::list<CGradientColor>& stops() { return gDialogActiveGradient.ColorList(); }

    int below(int limit) { return static_cast<int>(random_() % static_cast<std::uint32_t>(limit)); }
    std::uint16_t channel() { return static_cast<std::uint16_t>(below(65536)); }
    easel::drawing::Point within(const easel::paint::PixelRect& rect, int margin) {
        return {static_cast<double>(rect.left - margin + below(rect.width() + 2 * margin)),
                static_cast<double>(rect.top - margin + below(rect.height() + 2 * margin))};
    }

    void moveOrRelease() {
        ++actions_;
        if (below(5) == 0) {
            mouse_.down = false;
            return;
        }
        mouse_.at = within(dragArea_, 40);
        wentOffTheRamp_ = wentOffTheRamp_ || mouse_.at.y >= dragArea_.bottom;
    }

    void press(Dialog& dialog, int item) {
        dragArea_ = dialog.item(item)->bounds;
        wentOffTheRamp_ = false;
        mouse_ = {within(dragArea_, 0), true};
        dialog.hit(item);
    }

    void act(Dialog& dialog) {
        rampWasPressed_ = false;
        switch (below(16)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
            press(dialog, kRampItem);
            // Mostly on a marker, or the ramp would only ever fill up with stops.
            if (below(4) != 0)
                mouse_.at.x = placeOfSomeStop(dragArea_);
            rampWasPressed_ = true;
            break;
        case 5:
            press(dialog, kPreviewItem);
            break;
        case 6:
            press(dialog, kColorItem);
            break;
        case 7:
            dialog.hit(below(2) == 0 ? kLinearItem : kRadialItem);
            break;
        case 8:
        case 9:
            dialog.typeCharacter(U"0123456789.-e5x\u4e2d"[below(16)]);
            break;
        case 10:
            dialog.eraseBackward();
            break;
        case 11:
            dialog.enterText(kPositionItem, below(2) == 0 ? "" : std::to_string(below(1400) / 10.0 - 20));
            break;
        case 12:
            dialog.selectText(kPositionItem, {below(4), below(8)});
            break;
        case 13:
            press(dialog, std::array{short{3}, kUpperSeparatorItem, kLowerSeparatorItem,
                                     kPositionItem}[static_cast<std::size_t>(below(4))]);
            break;
        case 14:
            if (below(8) == 0 &&
                dialog.chooseEntry(kTemplateItem, 1 + below(dialog.item(kTemplateItem)->menu->count())) ==
                    easel::runtime::EditOutcome::Accepted)
                hadTwo_ = false; // a template may have one
            break;
        default:
            if (below(12) == 0)
                dialog.hit(below(2) == 0 ? kOKItem : kCancelItem);
        }
    }

    double placeOfSomeStop(const easel::paint::PixelRect& item) {
        const auto stop = std::next(stops().begin(), below(static_cast<int>(stops().size())));
        const double place = item.left + kRampMargin + stop->Percent() * (item.width() - 2 * kRampMargin);
        return std::clamp(std::floor(place), static_cast<double>(item.left),
                          static_cast<double>(item.right - 1));
    }

    void nameTemplate(Dialog& dialog) {
        if (below(3) != 0)
            dialog.typeCharacter(static_cast<char32_t>('a' + below(5)));
        else
            dialog.hit(below(3) == 0 ? kCancelItem : kOKItem);
    }

    void checkInvariants(Dialog& dialog) {
        EXPECT_TRUE(equal(*caller_, untouched_)) << "nothing before OK";
        EXPECT_TRUE(std::is_sorted(stops().begin(), stops().end()));
        hadTwo_ = hadTwo_ || stops().size() >= 2;
        EXPECT_GE(stops().size(), hadTwo_ ? 2u : 1u);
        checkActiveStop();
        const easel::paint::PortState& now = dialog.port().state();
        EXPECT_EQ(now.foreground, opened_.foreground);
        EXPECT_EQ(now.clip, opened_.clip);
        EXPECT_EQ(now.pen.size, opened_.pen.size);
        EXPECT_EQ(now.pen.mode, opened_.pen.mode);
        EXPECT_FALSE(gDrawingToDialog);
    }

    void checkActiveStop() {
        const auto isActive = [](const CGradientColor& stop) {
            return sameBits(stop.Percent(), gDialogActivePercent);
        };
        const auto hasColor = [](const CGradientColor& stop) {
            return stop.ColorRGB() == gDialogActiveEditColor;
        };
        EXPECT_TRUE(std::any_of(stops().begin(), stops().end(), isActive))
            << "the active stop is in the list";
        if (std::any_of(stops().begin(), stops().end(),
                        [&](const CGradientColor& stop) { return isActive(stop) && hasColor(stop); })) {
            colorIsStale_ = false;
            return;
        }
        // A stop that comes back onto the ramp gets its old color after the shared color was taken from it,
        // and the two differ until something takes note again.
        EXPECT_TRUE(colorIsStale_ || (rampWasPressed_ && wentOffTheRamp_));
        colorIsStale_ = true;
    }

    std::mt19937 random_;
    MouseState mouse_;
    easel::paint::PixelRect dragArea_;
    easel::paint::PortState opened_;
    bool rampWasPressed_ = false; // by the last action
    bool wentOffTheRamp_ = false;
    bool colorIsStale_ = false;
    bool hadTwo_ = false;
    int actions_ = 0;
    CGradientData* caller_ = nullptr;
    CGradientData untouched_;
};

TEST(EditorRandomWalk, KeepsItsInvariantsOverTwentyThousandActions) {
    RandomUser user(20260101);
    const EditorStage stage(user);
    InitTemplates("Walked");
    std::vector<CGradientData> gradients{
        CGradientData(),
        gradientOf({{{1, 2, 3}, 0.5}}),
        gradientOf({{{0, 0, 0}, 0.0}, {{65535, 0, 0}, 0.0}, {{0, 65535, 0}, 1.0}, {{0, 0, 65535}, 1.0}}),
        gradientOf({{{9, 9, 9}, 0.1}, {{8, 8, 8}, 0.2}, {{7, 7, 7}, 0.3}, {{6, 6, 6}, 0.7}}),
    };
    gradients[3].SetType(kRadialGradient);
    for (std::size_t session = 0; user.actions() < kActions && !testing::Test::HasFailure(); ++session)
        user.edit(gradients[session % gradients.size()]);
    EXPECT_GE(user.actions(), kActions);
}

} // namespace
} // namespace tests
