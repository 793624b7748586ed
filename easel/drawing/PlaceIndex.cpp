#include "easel/drawing/PlaceIndex.h"

#include <boost/geometry.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace easel::drawing {

namespace {
namespace bg = boost::geometry;
// Single precision takes half the memory; boxes grow a little to what it can hold.
using TreePoint = bg::model::point<float, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;
using TreeValue = std::pair<TreeBox, Slot>;

constexpr float kFarthest = std::numeric_limits<float>::max();

float narrowed(double value) {
    return static_cast<float>(std::clamp<double>(value, -kFarthest, kFarthest));
}

float atMost(double value) {
    const float near = narrowed(value);
    return near > value ? std::nextafter(near, -kFarthest) : near;
}

float atLeast(double value) {
    const float near = narrowed(value);
    return near < value ? std::nextafter(near, kFarthest) : near;
}

TreeBox treeBox(const Box& box) {
    return {{atMost(box.left), atMost(box.top)}, {atLeast(box.right), atLeast(box.bottom)}};
}

// Building a tree takes more memory beside it than the tree itself: that of one of several at most.
constexpr Slot kSlotsOfATree = Slot{1} << 17;
} // namespace

struct PlaceIndex::Tree {
    bg::index::rtree<TreeValue, bg::index::quadratic<16>> values;
};

PlaceIndex::PlaceIndex() = default;
PlaceIndex::~PlaceIndex() = default;
PlaceIndex::PlaceIndex(PlaceIndex&&) noexcept = default;
PlaceIndex& PlaceIndex::operator=(PlaceIndex&&) noexcept = default;

void PlaceIndex::assign(Slot count, const std::function<Box(Slot)>& boxOf) {
    trees_.clear();
    std::vector<TreeValue> values;
    values.reserve(std::min(count, kSlotsOfATree));
    for (Slot slot = 0; slot < count;) {
        const Slot end = slot + std::min(count - slot, kSlotsOfATree);
        values.clear();
        for (; slot < end; ++slot)
            if (const Box box = boxOf(slot); !box.empty())
                values.emplace_back(treeBox(box), slot);
        trees_.push_back(std::make_unique<Tree>(Tree{decltype(Tree::values)(values)}));
    }
}

PlaceIndex::Tree& PlaceIndex::treeOf(Slot slot) {
    const std::size_t number = slot / kSlotsOfATree;
    while (trees_.size() <= number)
        trees_.push_back(std::make_unique<Tree>());
    return *trees_[number];
}

void PlaceIndex::insert(const Box& box, Slot slot) {
    if (!box.empty())
        treeOf(slot).values.insert(TreeValue(treeBox(box), slot));
}

void PlaceIndex::erase(const Box& box, Slot slot) {
    if (!box.empty())
        treeOf(slot).values.remove(TreeValue(treeBox(box), slot));
}

std::vector<Slot> PlaceIndex::within(const Box& area) const {
    std::vector<Slot> found;
    if (area.empty())
        return found;
    const auto meetsArea = bg::index::intersects(treeBox(area));
    for (const auto& tree : trees_)
        for (auto it = tree->values.qbegin(meetsArea); it != tree->values.qend(); ++it)
            found.push_back(it->second);
    return found;
}

} // namespace easel::drawing
