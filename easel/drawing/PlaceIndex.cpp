#include "easel/drawing/PlaceIndex.h"

#include <boost/geometry.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <iterator>

namespace easel::drawing {

namespace {
namespace bg = boost::geometry;
using TreePoint = bg::model::point<double, 2, bg::cs::cartesian>;
using TreeBox = bg::model::box<TreePoint>;
using TreeValue = std::pair<TreeBox, Slot>;

TreeBox treeBox(const Box& box) {
    return {{box.left, box.top}, {box.right, box.bottom}};
}
} // namespace

struct PlaceIndex::Tree {
    bg::index::rtree<TreeValue, bg::index::quadratic<16>> values;
};

PlaceIndex::PlaceIndex() : tree_(std::make_unique<Tree>()) {}
PlaceIndex::~PlaceIndex() = default;
PlaceIndex::PlaceIndex(PlaceIndex&&) noexcept = default;
PlaceIndex& PlaceIndex::operator=(PlaceIndex&&) noexcept = default;

void PlaceIndex::assign(const std::vector<Item>& items) {
    std::vector<TreeValue> values;
    values.reserve(items.size());
    for (const auto& [box, slot] : items)
        if (!box.empty())
            values.emplace_back(treeBox(box), slot);
    tree_->values = decltype(tree_->values)(values);
}

void PlaceIndex::insert(const Box& box, Slot slot) {
    if (!box.empty())
        tree_->values.insert(TreeValue(treeBox(box), slot));
}

void PlaceIndex::erase(const Box& box, Slot slot) {
    if (!box.empty())
        tree_->values.remove(TreeValue(treeBox(box), slot));
}

std::vector<Slot> PlaceIndex::within(const Box& area) const {
    std::vector<Slot> found;
    if (area.empty())
        return found;
    for (auto it = tree_->values.qbegin(bg::index::intersects(treeBox(area))); it != tree_->values.qend();
         ++it)
        found.push_back(it->second);
    return found;
}

} // namespace easel::drawing
