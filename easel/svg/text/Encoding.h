// The encodings that SVG files come in. Inside, all text is UTF-8.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

// Bytes stands for Latin-1 and for every other encoding that extends ASCII: each byte is one character, so
// that nothing is lost whatever it means.
enum class Encoding : std::uint8_t { Utf8, Utf16Little, Utf16Big, Bytes };

// By the byte order mark, else by the first bytes and the XML declaration.
Encoding detectEncoding(std::string_view bytes);

// Damage in UTF-16 becomes U+FFFD, one for each unit; UTF-8 is taken as it is.
std::string decode(std::string_view bytes, Encoding encoding);
// Characters that the encoding lacks become references such as &#8364;.
std::string encode(std::string_view text, Encoding encoding);

// Where these places of the decoded text (ascending) lie in the bytes.
std::vector<std::size_t> byteOffsets(std::string_view text, Encoding encoding,
                                     const std::vector<std::size_t>& textOffsets);

} // namespace easel::svg
