// The host's text encoding, Mac Roman, and the desktop's, UTF-8, turned into each other without loss.
#pragma once

#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace easel::classic {

struct EncodingError {
    enum class Kind {
        NotUtf8,       // the bytes are not well-formed UTF-8
        NotInEncoding, // well-formed, with a character that Mac Roman lacks
    };
    Kind kind = Kind::NotUtf8;
    std::string culprit; // the first character (in UTF-8) that Mac Roman lacks
};

// Takes composed or decomposed text: a letter and its accent given apart become the one character for both.
tl::expected<std::string, EncodingError> toMacRoman(std::string_view utf8);

// Every byte has a character, so this always succeeds. The result is composed (NFC).
std::string fromMacRoman(std::string_view macRoman);

} // namespace easel::classic
