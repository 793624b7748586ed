// Reads numbers, words and separators from the text of an attribute.
#pragma once

#include "easel/text/Ascii.h"

#include <optional>
#include <string_view>

namespace easel::svg {

using text::equalIgnoringCase;
using text::findIgnoringCase;
using text::isSpace;
using text::trimmed;

// What words are made of: letters, digits, '-', '_' and bytes above ASCII.
inline bool isWordByte(char c) {
    return text::isLetter(c) || text::isDigit(c) || c == '-' || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

class Scanner {
  public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    bool done() const { return rest_.empty(); }
    char peek() const { return rest_.empty() ? '\0' : rest_.front(); }
    std::string_view rest() const { return rest_; }

    void skipSpaces();
    // Blanks with at most one comma among them.
    void skipSeparator();
    // Takes the character if it is next.
    bool take(char c);
    // Takes the text if it is next, whatever its case.
    bool takeWord(std::string_view word);
    // One character, which must be there.
    char next();
    // A decimal number right here; one too large for a double is infinite. Nothing is taken if there is none.
    std::optional<double> number();
    // A run of what words are made of; may be empty.
    std::string_view word();
    // Everything up to `end`, which is taken too; the whole rest if it does not come.
    std::string_view until(char end);

  private:
    std::string_view rest_;
};

} // namespace easel::svg
