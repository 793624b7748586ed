// Groups: which of them need a layer, and what blends with what.
#include "easel/drawing/Drawing.h"
#include "easel/drawing/Filter.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace {

using namespace easel::drawing;

GroupPtr groupIn(const GroupPtr& parent, BlendMode blend = BlendMode::Normal, double opacity = 1) {
    Group group;
    group.parent = parent;
    group.blend = blend;
    group.opacity = opacity;
    return makeShared<const Group>(group);
}

ObjectPtr squareIn(const GroupPtr& group) {
    Object object;
    object.kind = Kind::Rect;
    object.outline = rectanglePath({0, 0, 10, 10});
    object.group = group;
    return sealed(std::move(object));
}

TEST(Group, IsALayerForAnyOneThingThatTheParentCannotDoForIt) {
    EXPECT_FALSE(isLayer(Group()));
    const std::vector<std::function<void(Group&)>> reasons = {
        [](Group& group) { group.opacity = 0.99; },
        [](Group& group) { group.clip = std::make_shared<const ClipPath>(); },
        [](Group& group) { group.mask = std::make_shared<const Mask>(); },
        [](Group& group) { group.blend = BlendMode::Multiply; },
        [](Group& group) { group.isolated = true; },
        [](Group& group) { group.filter = std::make_shared<const Filter>(); },
    };
    for (std::size_t i = 0; i < reasons.size(); ++i) {
        Group group;
        reasons[i](group);
        EXPECT_TRUE(isLayer(group)) << "reason " << i;
    }
}

TEST(Group, BlendsIfItOrOneAroundItHasAMode) {
    EXPECT_FALSE(blends(nullptr));
    EXPECT_FALSE(blends(groupIn(groupIn(nullptr))));
    EXPECT_TRUE(blends(groupIn(nullptr, BlendMode::Screen)));
    EXPECT_TRUE(blends(groupIn(groupIn(groupIn(nullptr, BlendMode::Screen)))));
    EXPECT_TRUE(blends(groupIn(groupIn(nullptr), BlendMode::Screen)));
}

TEST(Group, BlendsWithTheDrawingUnlessALayerIsAroundIt) {
    const GroupPtr plain = groupIn(nullptr);
    const GroupPtr layer = groupIn(nullptr, BlendMode::Normal, 0.5);
    EXPECT_FALSE(blendsWithDrawing(*plain));
    EXPECT_FALSE(blendsWithDrawing(*layer));
    EXPECT_TRUE(blendsWithDrawing(*groupIn(nullptr, BlendMode::Multiply)));
    EXPECT_TRUE(blendsWithDrawing(*groupIn(plain, BlendMode::Multiply)));
    EXPECT_FALSE(blendsWithDrawing(*groupIn(layer, BlendMode::Multiply)));
    EXPECT_FALSE(blendsWithDrawing(*groupIn(groupIn(layer), BlendMode::Multiply)));
    EXPECT_TRUE(blendsWithDrawing(*groupIn(groupIn(nullptr, BlendMode::Screen), BlendMode::Multiply)));
}

TEST(Drawing, BlendsIfAGroupOfAnyOfItsObjectsDoes) {
    const GroupPtr plain = groupIn(nullptr);
    const GroupPtr blending = groupIn(nullptr, BlendMode::Multiply);
    const auto blends = [](std::vector<ObjectPtr> objects) {
        return Drawing(10, 10, std::move(objects), nullptr, {}).blends();
    };
    EXPECT_FALSE(blends({}));
    EXPECT_FALSE(blends({squareIn(nullptr), squareIn(plain), squareIn(plain)}));
    EXPECT_TRUE(blends({squareIn(blending)}));
    EXPECT_TRUE(blends({squareIn(nullptr), squareIn(plain), squareIn(plain), squareIn(blending)}));
    EXPECT_TRUE(blends({squareIn(blending), squareIn(nullptr)}));
}

} // namespace
