// The text of a scenario, cut into lines and words.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace easel::play {

// Words are separated by blanks; a word in double quotes may hold blanks, `\"` and `\\`; `#` outside of
// quotes starts a comment. Throws PlayError for an open quote, another escape or text that is not UTF-8.
std::vector<std::string> splitWords(std::string_view line);

// The lines of a scenario, one after the other. Lines are cut when they are reached, so that a mistake stops
// the scenario no sooner than at its line.
class Script {
  public:
    explicit Script(std::string text) : text_(std::move(text)) {}

    // Goes on to the next line that holds words. False at the end. Throws as splitWords does; the line number
    // is then that of the bad line.
    bool next();
    const std::vector<std::string>& words() const { return words_; }
    // Of the line last reached, from 1; the last line's at the end.
    std::size_t lineNumber() const { return lineNumber_; }

  private:
    std::string text_;
    std::size_t position_ = 0;
    std::size_t lineNumber_ = 0;
    std::vector<std::string> words_;
};

} // namespace easel::play
