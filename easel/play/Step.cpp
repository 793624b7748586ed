// Takes clicks and drags apart into what the mouse does.
#include "easel/play/Step.h"

#include "easel/play/PlayError.h"

#include <algorithm>

namespace easel::play {

namespace {

using Words = std::vector<std::string>;

constexpr std::size_t kWordsAPoint = 2;
constexpr std::size_t kItemWords = 2;

// A command with the words from `first` up to `last`, behind those that say in which item its point is.
Words command(const char* name, const Words& item, const Words& words, std::size_t first, std::size_t last) {
    Words made{name};
    made.insert(made.end(), item.begin(), item.end());
    made.insert(made.end(), words.begin() + static_cast<std::ptrdiff_t>(first),
                words.begin() + static_cast<std::ptrdiff_t>(last));
    return made;
}

std::vector<Step> stepsOfDrag(const Step& line) {
    const Words& words = line.words;
    const bool inItem = words.size() > 1 && words[1] == "item";
    const std::size_t first = std::min(words.size(), inItem ? 1 + kItemWords : 1);
    const Words item(words.begin() + 1, words.begin() + static_cast<std::ptrdiff_t>(first));
    if (words.size() - first < 2 * kWordsAPoint)
        throw PlayError("a drag needs at least two points");
    if ((words.size() - first) % kWordsAPoint != 0)
        throw PlayError("V is missing");
    std::vector<Step> steps;
    for (std::size_t at = first; at < words.size(); at += kWordsAPoint)
        steps.push_back(
            {line.line, command(at == first ? "press" : "move", item, words, at, at + kWordsAPoint)});
    steps.push_back({line.line, {"release"}});
    return steps;
}

} // namespace

std::vector<Step> stepsOf(Step line) {
    if (line.words[0] == "drag")
        return stepsOfDrag(line);
    if (line.words[0] != "click" && line.words[0] != "hit")
        return {std::move(line)};
    Step release{line.line, {"release"}};
    // A hit is a press in the middle of an item, which is known only when the dialog is open.
    if (line.words[0] == "click")
        line.words[0] = "press";
    return {std::move(line), std::move(release)};
}

} // namespace easel::play
