#include "easel/drawing/Group.h"

#include <algorithm>
#include <array>

namespace easel::drawing {

namespace {
constexpr std::array<std::string_view, kBlendModeCount> kBlendModeNames = {
    "normal",      "multiply",   "screen",     "overlay",    "darken",     "lighten",
    "color-dodge", "color-burn", "hard-light", "soft-light", "difference", "exclusion",
    "hue",         "saturation", "color",      "luminosity"};
} // namespace

std::string_view blendModeName(BlendMode mode) {
    return kBlendModeNames[static_cast<std::size_t>(mode)];
}

std::optional<BlendMode> blendModeFromName(std::string_view name) {
    const auto found = std::find(kBlendModeNames.begin(), kBlendModeNames.end(), name);
    if (found == kBlendModeNames.end())
        return std::nullopt;
    return static_cast<BlendMode>(found - kBlendModeNames.begin());
}

bool isLayer(const Group& group) {
    return group.opacity < 1 || group.clip || group.mask || group.blend != BlendMode::Normal ||
           group.isolated || group.filter;
}

bool blends(const GroupPtr& group) {
    const Group* each = group.get();
    while (each && each->blend == BlendMode::Normal)
        each = each->parent.get();
    return each != nullptr;
}

bool blendsWithDrawing(const Group& group) {
    bool blends = false;
    for (const Group* each = &group; each; each = each->parent.get())
        blends = each->blend != BlendMode::Normal || (blends && !isLayer(*each));
    return blends;
}

} // namespace easel::drawing
