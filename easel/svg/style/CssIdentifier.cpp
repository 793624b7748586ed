#include "easel/svg/style/CssIdentifier.h"

#include "easel/text/Hexadecimal.h"
#include "easel/text/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace easel::svg {

namespace {

// A backslash at the end of a line is no escape.
bool beginsEscape(std::string_view text) {
    return text.starts_with('\\') &&
           (text.size() == 1 || (text[1] != '\n' && text[1] != '\r' && text[1] != '\f'));
}

bool beginsWord(char c) {
    return isWordByte(c) && !text::isDigit(c) && c != '-';
}

bool beginsIdentifier(std::string_view text) {
    if (text.starts_with("--"))
        return true;
    text.remove_prefix(text.starts_with('-') ? 1 : 0);
    return !text.empty() && (beginsWord(text.front()) || beginsEscape(text));
}

// What a run of letters, digits and hyphens is by its beginning: a letter there is part of a name, and one
// behind digits is their unit.
enum class Run : std::uint8_t { None, Hyphen, Name, Number };

Run after(Run run, char c) {
    if (!isWordByte(c))
        return Run::None;
    if (run == Run::Name || run == Run::Number)
        return run;
    if (c == '-')
        return run == Run::Hyphen ? Run::Name : Run::Hyphen;
    return text::isDigit(c) ? Run::Number : Run::Name;
}

// Whether a character without its escape would still be part of the same name.
bool maybePlain(Run run, char32_t character) {
    if (character >= 0x80)
        return run != Run::Number;
    const char c = static_cast<char>(character);
    return run == Run::Name ? isWordByte(c) : run != Run::Number && beginsWord(c);
}

void appendByNumber(std::string& result, char32_t character) {
    std::array<char, 8> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<unsigned>(character), 16);
    result += '\\';
    result.append(digits.data(), end.ptr);
    result += ' ';
}

} // namespace

char32_t takeEscape(std::string_view& text) {
    constexpr std::size_t kMostDigits = 6;
    constexpr char32_t kLast = 0x10ffff;
    char32_t number = 0;
    std::size_t digits = 0;
    for (; digits < std::min(text.size(), kMostDigits); ++digits) {
        const auto digit = text::hexadecimalDigit(text[digits]);
        if (!digit)
            break;
        number = number * 16 + *digit;
    }
    if (digits == 0) {
        const auto character = text.empty() ? std::nullopt : text::firstCharacter(text);
        text.remove_prefix(character ? character->length : std::min<std::size_t>(text.size(), 1));
        return character ? character->character : text::kReplacement;
    }
    text.remove_prefix(digits);
    // One blank ends the number.
    if (text.starts_with("\r\n"))
        text.remove_prefix(2);
    else if (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    const bool isCharacter = number != 0 && number <= kLast && (number < 0xd800 || number > 0xdfff);
    return isCharacter ? number : text::kReplacement;
}

std::string takeIdentifier(Scanner& scanner) {
    std::string result;
    std::string_view rest = scanner.rest();
    if (!beginsIdentifier(rest))
        return result;
    while (true) {
        if (beginsEscape(rest)) {
            rest.remove_prefix(1);
            text::appendUtf8(result, takeEscape(rest));
        } else if (!rest.empty() && isWordByte(rest.front())) {
            result += rest.front();
            rest.remove_prefix(1);
        } else {
            scanner = Scanner(rest);
            return result;
        }
    }
}

std::string withPlainNames(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    Run run = Run::None;
    while (!text.empty()) {
        if (!beginsEscape(text)) {
            run = after(run, text.front());
            result += text.front();
            text.remove_prefix(1);
            continue;
        }
        text.remove_prefix(1);
        const char32_t character = takeEscape(text);
        if (maybePlain(run, character))
            text::appendUtf8(result, character);
        else
            appendByNumber(result, character);
        run = run == Run::Number ? run : Run::Name;
    }
    return result;
}

} // namespace easel::svg
