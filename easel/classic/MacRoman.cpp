// The standard Mac Roman table, with the canonical equivalents of its characters.
#include "easel/classic/MacRoman.h"

#include "easel/text/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

namespace easel::classic {
namespace {

// The characters of bytes 128 to 255; lower bytes are ASCII.
constexpr std::array<char32_t, 128> kHighCharacters{
    0x00C4, 0x00C5, 0x00C7, 0x00C9, 0x00D1, 0x00D6, 0x00DC, 0x00E1, 0x00E0, 0x00E2, 0x00E4, 0x00E3, 0x00E5,
    0x00E7, 0x00E9, 0x00E8, 0x00EA, 0x00EB, 0x00ED, 0x00EC, 0x00EE, 0x00EF, 0x00F1, 0x00F3, 0x00F2, 0x00F4,
    0x00F6, 0x00F5, 0x00FA, 0x00F9, 0x00FB, 0x00FC, 0x2020, 0x00B0, 0x00A2, 0x00A3, 0x00A7, 0x2022, 0x00B6,
    0x00DF, 0x00AE, 0x00A9, 0x2122, 0x00B4, 0x00A8, 0x2260, 0x00C6, 0x00D8, 0x221E, 0x00B1, 0x2264, 0x2265,
    0x00A5, 0x00B5, 0x2202, 0x2211, 0x220F, 0x03C0, 0x222B, 0x00AA, 0x00BA, 0x03A9, 0x00E6, 0x00F8, 0x00BF,
    0x00A1, 0x00AC, 0x221A, 0x0192, 0x2248, 0x2206, 0x00AB, 0x00BB, 0x2026, 0x00A0, 0x00C0, 0x00C3, 0x00D5,
    0x0152, 0x0153, 0x2013, 0x2014, 0x201C, 0x201D, 0x2018, 0x2019, 0x00F7, 0x25CA, 0x00FF, 0x0178, 0x2044,
    0x20AC, 0x2039, 0x203A, 0xFB01, 0xFB02, 0x2021, 0x00B7, 0x201A, 0x201E, 0x2030, 0x00C2, 0x00CA, 0x00C1,
    0x00CB, 0x00C8, 0x00CD, 0x00CE, 0x00CF, 0x00CC, 0x00D3, 0x00D4, 0xF8FF, 0x00D2, 0x00DA, 0x00DB, 0x00D9,
    0x0131, 0x02C6, 0x02DC, 0x00AF, 0x02D8, 0x02D9, 0x02DA, 0x00B8, 0x02DD, 0x02DB, 0x02C7,
};

struct Composition {
    char32_t base;
    char32_t mark;
    char32_t composed;
};

// What canonical decomposition takes apart of the characters above.
constexpr std::array kCompositions = std::to_array<Composition>({
    {0x0041, 0x0300, 0x00C0}, {0x0041, 0x0301, 0x00C1}, {0x0041, 0x0302, 0x00C2}, {0x0041, 0x0303, 0x00C3},
    {0x0041, 0x0308, 0x00C4}, {0x0041, 0x030A, 0x00C5}, {0x0043, 0x0327, 0x00C7}, {0x0045, 0x0300, 0x00C8},
    {0x0045, 0x0301, 0x00C9}, {0x0045, 0x0302, 0x00CA}, {0x0045, 0x0308, 0x00CB}, {0x0049, 0x0300, 0x00CC},
    {0x0049, 0x0301, 0x00CD}, {0x0049, 0x0302, 0x00CE}, {0x0049, 0x0308, 0x00CF}, {0x004E, 0x0303, 0x00D1},
    {0x004F, 0x0300, 0x00D2}, {0x004F, 0x0301, 0x00D3}, {0x004F, 0x0302, 0x00D4}, {0x004F, 0x0303, 0x00D5},
    {0x004F, 0x0308, 0x00D6}, {0x0055, 0x0300, 0x00D9}, {0x0055, 0x0301, 0x00DA}, {0x0055, 0x0302, 0x00DB},
    {0x0055, 0x0308, 0x00DC}, {0x0061, 0x0300, 0x00E0}, {0x0061, 0x0301, 0x00E1}, {0x0061, 0x0302, 0x00E2},
    {0x0061, 0x0303, 0x00E3}, {0x0061, 0x0308, 0x00E4}, {0x0061, 0x030A, 0x00E5}, {0x0063, 0x0327, 0x00E7},
    {0x0065, 0x0300, 0x00E8}, {0x0065, 0x0301, 0x00E9}, {0x0065, 0x0302, 0x00EA}, {0x0065, 0x0308, 0x00EB},
    {0x0069, 0x0300, 0x00EC}, {0x0069, 0x0301, 0x00ED}, {0x0069, 0x0302, 0x00EE}, {0x0069, 0x0308, 0x00EF},
    {0x006E, 0x0303, 0x00F1}, {0x006F, 0x0300, 0x00F2}, {0x006F, 0x0301, 0x00F3}, {0x006F, 0x0302, 0x00F4},
    {0x006F, 0x0303, 0x00F5}, {0x006F, 0x0308, 0x00F6}, {0x0075, 0x0300, 0x00F9}, {0x0075, 0x0301, 0x00FA},
    {0x0075, 0x0302, 0x00FB}, {0x0075, 0x0308, 0x00FC}, {0x0079, 0x0308, 0x00FF}, {0x0059, 0x0308, 0x0178},
    {0x003D, 0x0338, 0x2260},
});

// Characters that Unicode defines as the same as one of ours.
constexpr std::array kEquivalents = std::to_array<std::pair<char32_t, char32_t>>({
    {0x037E, 0x003B},
    {0x0387, 0x00B7},
    {0x1FEF, 0x0060},
    {0x1FFD, 0x00B4},
    {0x2126, 0x03A9},
    {0x212A, 0x004B},
    {0x212B, 0x00C5},
});

struct CodedCharacter {
    char32_t character;
    unsigned char byte;
};

constexpr auto kByCharacter = [] {
    std::array<CodedCharacter, kHighCharacters.size()> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = {kHighCharacters[i], static_cast<unsigned char>(128 + i)};
    std::sort(table.begin(), table.end(),
              [](const auto& a, const auto& b) { return a.character < b.character; });
    return table;
}();

std::optional<char> byteOf(char32_t character) {
    if (character < 128)
        return static_cast<char>(character);
    const auto found = std::lower_bound(kByCharacter.begin(), kByCharacter.end(), character,
                                        [](const CodedCharacter& a, char32_t b) { return a.character < b; });
    if (found == kByCharacter.end() || found->character != character)
        return std::nullopt;
    return static_cast<char>(found->byte);
}

std::optional<char32_t> compose(char32_t base, char32_t mark) {
    const auto found =
        std::find_if(kCompositions.begin(), kCompositions.end(),
                     [&](const Composition& entry) { return entry.base == base && entry.mark == mark; });
    return found == kCompositions.end() ? std::nullopt : std::optional(found->composed);
}

char32_t canonical(char32_t character) {
    for (const auto& [equivalent, ours] : kEquivalents)
        if (equivalent == character)
            return ours;
    return character;
}

} // namespace

tl::expected<std::string, EncodingError> toMacRoman(std::string_view utf8) {
    using Kind = EncodingError::Kind;
    std::string result;
    std::optional<char32_t> previous;
    for (std::size_t at = 0; at < utf8.size();) {
        const auto decoded = text::firstCharacter(utf8.substr(at));
        if (!decoded)
            return tl::unexpected(EncodingError{Kind::NotUtf8, {}});
        const auto character = canonical(decoded->character);
        const auto composed = previous ? compose(*previous, character) : std::nullopt;
        const auto byte = byteOf(composed.value_or(character));
        if (!byte)
            return tl::unexpected(
                EncodingError{Kind::NotInEncoding, std::string(utf8.substr(at, decoded->length))});
        if (composed)
            result.pop_back();
        result.push_back(*byte);
        previous = composed.value_or(character);
        at += decoded->length;
    }
    return result;
}

std::string fromMacRoman(std::string_view macRoman) {
    std::string utf8;
    utf8.reserve(macRoman.size());
    for (const char c : macRoman) {
        const auto byte = static_cast<unsigned char>(c);
        text::appendUtf8(utf8, byte < 128 ? char32_t{byte} : kHighCharacters[byte - 128U]);
    }
    return utf8;
}

} // namespace easel::classic
