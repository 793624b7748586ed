// What has to be seen in every look, whatever its colors.
#include "tests/desktop/DesktopTest.h"

#include <algorithm>
#include <fstream>

namespace desktop {
namespace {

int brightness(std::uint32_t color) {
    return static_cast<int>(((color >> 16) & 0xff) + ((color >> 8) & 0xff) + (color & 0xff)) / 3;
}

// How far the brightest and the darkest pixel of an area are apart, of 255.
int contrastIn(const Picture& picture, const Area& area) {
    int darkest = 255;
    int brightest = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x) {
            const int here = brightness(picture.at({x, y}));
            darkest = std::min(darkest, here);
            brightest = std::max(brightest, here);
        }
    return brightest - darkest;
}

class LookTest : public DesktopTest, public testing::WithParamInterface<const char*> {
  protected:
    void startInLook(const std::string& look) {
        std::ofstream(configuration() / "kestrad" / "easel.conf", std::ios::app)
            << "appearance=" << look << '\n';
        startWithDrawing();
    }
};

TEST_P(LookTest, RadioButtonsButtonsFieldsAndTheSwatchStandOutFromTheGround) {
    startInLook(GetParam());
    const Window editor = openEditor(160, 290);
    const auto stripAt = [&](Spot from, int width, int height) {
        const Spot corner = in(editor, from);
        return Area{corner.x, corner.y, corner.x + width, corner.y + height};
    };
    const Area unsetRadio = stripAt({344, 22}, 18, 20);
    const Area edgeOfCancel = stripAt({236, 392}, 8, 10);
    const Area edgeOfPopup = stripAt({20, 24}, 8, 10);
    // Up to the swatch's frame, which is black whatever its color.
    const Area edgeOfSwatch = stripAt({EditorItems::swatch.x - 45, EditorItems::swatch.y}, 6, 10);
    constexpr int kSeen = 40;
    EXPECT_TRUE(eventually([&] { return contrastIn(screen().picture(), unsetRadio) > kSeen; }));
    EXPECT_TRUE(eventually([&] { return contrastIn(screen().picture(), edgeOfCancel) > kSeen; }));
    EXPECT_TRUE(eventually([&] { return contrastIn(screen().picture(), edgeOfPopup) > kSeen; }));
    EXPECT_TRUE(eventually([&] { return contrastIn(screen().picture(), edgeOfSwatch) > kSeen; }));
}

INSTANTIATE_TEST_SUITE_P(Looks, LookTest, testing::Values("light", "dark", "high-contrast"),
                         [](const auto& each) {
                             std::string name = each.param;
                             std::erase(name, '-');
                             return name;
                         });

} // namespace
} // namespace desktop
