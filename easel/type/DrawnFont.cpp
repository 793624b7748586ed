#include "easel/type/DrawnFont.h"

#include <algorithm>
#include <utility>

namespace easel::type {

std::size_t DrawnFont::add(DrawnGlyph glyph) {
    const std::size_t number = glyphs_.size();
    if (glyph.characters.empty())
        missing_ = number;
    else
        byFirst_[glyph.characters.front()].push_back(number);
    glyphs_.push_back(std::move(glyph));
    return number;
}

const DrawnGlyph* DrawnFont::match(std::u32string_view letters, Follow how) const {
    const auto known = byFirst_.find(letters.front());
    if (known == byFirst_.end())
        return nullptr;
    for (const std::size_t number : known->second) {
        const DrawnGlyph& glyph = glyphs_[number];
        if (glyph.only.value_or(how) == how && letters.starts_with(glyph.characters))
            return &glyph;
    }
    return nullptr;
}

const DrawnGlyph* DrawnFont::missing() const {
    return missing_ < glyphs_.size() ? &glyphs_[missing_] : nullptr;
}

void DrawnFont::addKerning(Follow how, const std::vector<std::size_t>& left, std::vector<std::size_t> right,
                           double nearer) {
    Kernings& kernings = how == Follow::Down ? down_ : across_;
    std::sort(right.begin(), right.end());
    for (const std::size_t glyph : left)
        kernings.of[glyph].push_back(kernings.all.size());
    kernings.all.push_back({std::move(right), nearer});
}

double DrawnFont::kerning(Follow how, const DrawnGlyph& left, const DrawnGlyph& right) const {
    const Kernings& kernings = how == Follow::Down ? down_ : across_;
    const auto known = kernings.of.find(numberOf(left));
    if (known == kernings.of.end())
        return 0;
    for (const std::size_t each : known->second)
        if (const Kerning& kerning = kernings.all[each];
            std::binary_search(kerning.right.begin(), kerning.right.end(), numberOf(right)))
            return kerning.nearer;
    return 0;
}

void DrawnFont::sealFace() {
    Face own;
    own.family = font.families;
    face_ = std::make_shared<const Face>(std::move(own));
}

} // namespace easel::type
