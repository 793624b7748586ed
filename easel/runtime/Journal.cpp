// Writes the journal's words.
#include "easel/runtime/Journal.h"

#include <array>
#include <charconv>
#include <utility>

namespace easel::runtime {

namespace {

template <class Number> std::string shortest(Number value) {
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return {text.data(), end};
}

} // namespace

std::vector<std::string> Journal::take() {
    return std::exchange(lines_, {});
}

std::string journalWord(bool value) {
    return value ? "true" : "false";
}
std::string journalWord(long long value) {
    return shortest(value);
}
std::string journalWord(unsigned long long value) {
    return shortest(value);
}
std::string journalWord(double value) {
    return shortest(value);
}

std::string journalWord(std::string_view text) {
    std::string word = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            word += '\\';
        word += c;
    }
    return word + '"';
}

} // namespace easel::runtime
