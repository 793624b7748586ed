#include "easel/type/SetText.h"

#include "easel/text/Utf8.h"

namespace easel::type {

namespace {

template <class Value>
bool samePlaceOrValue(const std::shared_ptr<const Value>& a, const std::shared_ptr<const Value>& b) {
    return a == b || (a && b && *a == *b);
}

bool continues(const SetRun& run, const SetRun& next) {
    return samePlaceOrValue(run.face, next.face) && samePlaceOrValue(run.font, next.font) &&
           run.fromEms == next.fromEms && run.rightToLeft == next.rightToLeft;
}

// What no file of text may hold.
bool isCharacter(char32_t c) {
    return c >= 0x20 && (c < 0x7f || c > 0x9f) && !(c >= 0xfdd0 && c <= 0xfdef) && (c & 0xfffe) != 0xfffe;
}

} // namespace

void SetText::add(const SetRun& run, std::string_view characters, std::span<const Glyph> ofLetter,
                  drawing::Point at, double advance) {
    if (runs.empty() || !continues(runs.back(), run))
        runs.push_back(run);
    for (const char32_t character : text::codePointsOf(characters))
        text::appendUtf8(text, isCharacter(character) ? character : text::kReplacement);
    glyphs.insert(glyphs.end(), ofLetter.begin(), ofLetter.end());
    letters.push_back({at, static_cast<std::uint32_t>(text.size()), static_cast<std::uint32_t>(glyphs.size()),
                       static_cast<float>(advance)});
    runs.back().end = letters.size();
}

} // namespace easel::type
