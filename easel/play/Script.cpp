// Cuts a scenario into lines and words.
#include "easel/play/Script.h"

#include "easel/play/PlayError.h"
#include "easel/text/Utf8.h"

#include <algorithm>

namespace easel::play {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

// Reads a quoted word whose opening quote is at `at`; leaves `at` behind the closing one.
std::string quotedWord(std::string_view line, std::size_t& at) {
    std::string word;
    for (++at; at < line.size(); ++at) {
        if (line[at] == '"') {
            ++at;
            return word;
        }
        if (line[at] == '\\') {
            ++at;
            if (at == line.size() || (line[at] != '"' && line[at] != '\\'))
                throw PlayError("a backslash in quotes must be followed by \" or \\");
        }
        word += line[at];
    }
    throw PlayError("a quote is not closed");
}

std::string plainWord(std::string_view line, std::size_t& at) {
    const std::size_t begin = at;
    while (at < line.size() && !isBlank(line[at]) && line[at] != '#' && line[at] != '"')
        ++at;
    return std::string(line.substr(begin, at - begin));
}

} // namespace

std::vector<std::string> splitWords(std::string_view line) {
    if (!text::isUtf8(line))
        throw PlayError("the line is not UTF-8 text");
    std::vector<std::string> words;
    std::size_t at = 0;
    while (at < line.size() && line[at] != '#') {
        if (isBlank(line[at]))
            ++at;
        else
            words.push_back(line[at] == '"' ? quotedWord(line, at) : plainWord(line, at));
    }
    return words;
}

bool Script::next() {
    while (position_ < text_.size()) {
        const std::size_t end = std::min(text_.find('\n', position_), text_.size());
        const std::string_view line = std::string_view(text_).substr(position_, end - position_);
        position_ = end + 1;
        ++lineNumber_;
        words_ = splitWords(line);
        if (!words_.empty())
            return true;
    }
    return false;
}

} // namespace easel::play
