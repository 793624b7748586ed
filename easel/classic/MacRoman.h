// The host's text encoding, Mac Roman, and the desktop's, UTF-8, turned into each other without loss.
#pragma once

#include <string>
#include <string_view>

namespace easel::classic {

enum class EncodingOutcome {
    Converted,
    NotUtf8,       ///< the bytes are not well-formed UTF-8
    NotInEncoding, ///< well-formed, with a character that Mac Roman lacks
};

struct EncodedText {
    EncodingOutcome outcome = EncodingOutcome::Converted;
    std::string text;    ///< the Mac Roman bytes; empty unless converted
    std::string culprit; ///< the first character (in UTF-8) that stood in the way, if one did
};

/// Takes composed or decomposed text: a letter and its accent given apart become the one character for both.
EncodedText toMacRoman(std::string_view utf8);

/// Every byte has a character, so this always succeeds. The result is composed (NFC).
std::string fromMacRoman(std::string_view macRoman);

} // namespace easel::classic
