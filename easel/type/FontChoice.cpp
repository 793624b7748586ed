#include "easel/type/FontChoice.h"

#include "easel/text/Ascii.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

namespace easel::type {

namespace {

bool isOf(const Font& font, const std::string& family) {
    return text::equalIgnoringCase(font.families, family);
}

int slantDistance(const Font& font, const Font& asked) {
    constexpr int kOtherSlant = 10000;
    return (font.slant == Slant::Upright) == (asked.slant == Slant::Upright) ? 0 : kOtherSlant;
}

// The smaller, the nearer to what is asked for.
int distance(const DrawnFont& font, const Font& asked) {
    return slantDistance(font.font, asked) + (font.anyWeight ? 0 : std::abs(font.font.weight - asked.weight));
}

int distance(const LoadedFace& face, const Font& asked) {
    const Weights weights = face.weights.value_or(Weights{face.font.weight, face.font.weight});
    return slantDistance(face.font, asked) + std::abs(weights.nearest(asked.weight) - asked.weight);
}

bool areFor(const std::vector<Characters>& characters, char32_t one) {
    return characters.empty() ||
           std::any_of(characters.begin(), characters.end(),
                       [one](const Characters& each) { return one >= each.first && one <= each.last; });
}

} // namespace

bool OwnFonts::has(const std::string& family) const {
    const auto isIts = [&](const auto& each) { return isOf(each.font, family); };
    return std::any_of(loaded.begin(), loaded.end(), isIts) || std::any_of(drawn.begin(), drawn.end(), isIts);
}

FontChoice::FontChoice(const OwnFonts& own, Typesetter& system, std::shared_ptr<const Font> asked)
    : asked_(std::move(asked)), system_{nullptr, nullptr, asked_} {
    const std::string& names = asked_->families;
    for (std::size_t begin = 0; begin <= names.size();) {
        const std::size_t end = std::min(names.find(',', begin), names.size());
        const std::string name = names.substr(begin, end - begin);
        const bool isOwn = addNearest(own, name);
        // What comes behind a family of the system is for the system.
        if (!isOwn && system.has(name))
            return;
        if (isOwn && end == names.size())
            sign_ = chosen_.back().drawn;
        begin = end + 1;
    }
}

bool FontChoice::addNearest(const OwnFonts& own, const std::string& family) {
    int least = std::numeric_limits<int>::max();
    const auto forEach = [&](auto use) {
        for (const LoadedFace& face : own.loaded)
            if (isOf(face.font, family))
                use(distance(face, *asked_), face.letters ? ChosenFont{nullptr, &face} : standIn(face),
                    face.characters);
        for (const DrawnFont& font : own.drawn)
            if (isOf(font.font, family))
                use(distance(font, *asked_), ChosenFont{&font}, font.characters);
    };
    forEach([&](int away, const ChosenFont&, const auto&) { least = std::min(least, away); });
    forEach([&](int away, ChosenFont font, const std::vector<Characters>& characters) {
        if (away > least)
            return;
        chosen_.push_back(std::move(font));
        characters_.push_back(&characters);
    });
    return least < std::numeric_limits<int>::max();
}

ChosenFont FontChoice::standIn(const LoadedFace& face) const {
    Font font = *asked_;
    font.families = face.systemFamily + ',' + asked_->families;
    return {nullptr, nullptr, std::make_shared<const Font>(std::move(font))};
}

FontChoice::Found FontChoice::of(std::u32string_view letters, Follow how) const {
    for (std::size_t i = 0; i < chosen_.size(); ++i) {
        const ChosenFont& font = chosen_[i];
        if (!areFor(*characters_[i], letters.front()))
            continue;
        if (const DrawnGlyph* const glyph = font.drawn ? font.drawn->match(letters, how) : nullptr)
            return {font, glyph};
        if (!font.drawn && (!font.loaded || font.loaded->letters->has(letters.front())))
            return {font};
    }
    const DrawnGlyph* const missing =
        sign_ && areFor(sign_->characters, letters.front()) ? sign_->missing() : nullptr;
    return missing ? Found{{sign_}, missing} : Found{system_};
}

const ChosenFont& FontChoice::main() const {
    for (std::size_t i = 0; i < chosen_.size(); ++i)
        if (areFor(*characters_[i], U' '))
            return chosen_[i];
    return system_;
}

} // namespace easel::type
