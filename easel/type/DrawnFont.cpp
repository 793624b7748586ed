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

const DrawnGlyph* DrawnFont::match(std::u32string_view characters) const {
    const auto known = byFirst_.find(characters.front());
    if (known == byFirst_.end())
        return nullptr;
    for (const std::size_t number : known->second)
        if (characters.starts_with(glyphs_[number].characters))
            return &glyphs_[number];
    return nullptr;
}

const DrawnGlyph* DrawnFont::missing() const {
    return missing_ < glyphs_.size() ? &glyphs_[missing_] : nullptr;
}

void DrawnFont::addKerning(const std::vector<std::size_t>& left, std::vector<std::size_t> right,
                           double nearer) {
    std::sort(right.begin(), right.end());
    for (const std::size_t glyph : left)
        kerningsOf_[glyph].push_back(kernings_.size());
    kernings_.push_back({std::move(right), nearer});
}

double DrawnFont::kerning(const DrawnGlyph& left, const DrawnGlyph& right) const {
    const auto known = kerningsOf_.find(numberOf(left));
    if (known == kerningsOf_.end())
        return 0;
    for (const std::size_t each : known->second)
        if (std::binary_search(kernings_[each].right.begin(), kernings_[each].right.end(), numberOf(right)))
            return kernings_[each].nearer;
    return 0;
}

void DrawnFont::sealFace() {
    Face own;
    own.family = font.families;
    face_ = std::make_shared<const Face>(std::move(own));
}

} // namespace easel::type
