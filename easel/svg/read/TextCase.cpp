#include "easel/svg/read/TextCase.h"

#include <clocale>
#include <cwctype>

namespace easel::svg {

namespace {

constexpr char32_t kSharpS = U'\u00df';

// The C library knows Unicode's pairs, in a locale that belongs to no country. Null: it knows those of ASCII.
locale_t unicodeLocale() {
    static const locale_t kLocale = ::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return kLocale;
}

bool isLetterOrDigit(char32_t c) {
    const auto wide = static_cast<std::wint_t>(c);
    return unicodeLocale() ? ::iswalnum_l(wide, unicodeLocale()) != 0 : std::iswalnum(wide) != 0;
}

char32_t inCase(char32_t c, bool upper) {
    const auto wide = static_cast<std::wint_t>(c);
    if (!unicodeLocale())
        return static_cast<char32_t>(upper ? std::towupper(wide) : std::towlower(wide));
    return static_cast<char32_t>(upper ? ::towupper_l(wide, unicodeLocale())
                                       : ::towlower_l(wide, unicodeLocale()));
}

bool isApostrophe(char32_t c) {
    return c == U'\'' || c == U'\u2019';
}

} // namespace

std::u32string TextCase::shown(char32_t character, TextTransform transform) {
    // An apostrophe belongs to the word that it is in.
    const bool beginsWord = !insideWord_;
    insideWord_ = isLetterOrDigit(character) || (insideWord_ && isApostrophe(character));
    if (transform == TextTransform::None)
        return {character};
    if (transform == TextTransform::Lowercase)
        return {inCase(character, false)};
    if (transform == TextTransform::Capitalize && !beginsWord)
        return {character};
    if (character == kSharpS)
        return transform == TextTransform::Capitalize ? U"Ss" : U"SS";
    return {inCase(character, true)};
}

} // namespace easel::svg
