// Reads numbers and texts out of a command's words.
#include "easel/play/Arguments.h"

#include "easel/play/PlayError.h"

#include <charconv>
#include <cmath>

namespace easel::play {

double parseNumber(const std::string& word, const char* what) {
    double value = 0;
    const char* end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, value);
    if (result.ec == std::errc::result_out_of_range)
        throw PlayError(std::string(what) + ": " + word + " is out of range");
    if (result.ec != std::errc() || result.ptr != end)
        throw PlayError(std::string(what) + ": \"" + word + "\" is not a number");
    return value;
}

long parseInteger(const std::string& word, const char* what, long smallest, long largest) {
    long value = 0;
    const char* end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, value);
    if (result.ec == std::errc::invalid_argument || result.ptr != end)
        throw PlayError(std::string(what) + ": \"" + word + "\" is not a whole number");
    if (result.ec != std::errc() || value < smallest || value > largest)
        throw PlayError(std::string(what) + ": " + word + " is not between " + std::to_string(smallest) +
                        " and " + std::to_string(largest));
    return value;
}

bool Arguments::takeIf(const char* word) {
    if (empty() || words_[next_] != word)
        return false;
    ++next_;
    return true;
}

const std::string& Arguments::text(const char* what) {
    if (empty())
        throw PlayError(std::string(what) + " is missing");
    return words_[next_++];
}

double Arguments::anyNumber(const char* what) {
    return parseNumber(text(what), what);
}

double Arguments::number(const char* what) {
    const double value = anyNumber(what);
    if (!std::isfinite(value))
        throw PlayError(std::string(what) + " must be finite");
    return value;
}

double Arguments::size(const char* what) {
    const double value = number(what);
    if (value <= 0)
        throw PlayError(std::string(what) + " must be above 0");
    return value;
}

long Arguments::integer(const char* what, long smallest, long largest) {
    return parseInteger(text(what), what, smallest, largest);
}

drawing::Point Arguments::point() {
    const double h = number("H");
    return {h, number("V")};
}

std::vector<drawing::Point> Arguments::points(std::size_t fewest) {
    std::vector<drawing::Point> points;
    while (!empty() || points.size() < fewest)
        points.push_back(point());
    return points;
}

bool Arguments::onOff() {
    const std::string& word = text("on or off");
    if (word != "on" && word != "off")
        throw PlayError("\"" + word + "\" is neither on nor off");
    return word == "on";
}

void Arguments::done() const {
    if (!empty())
        throw PlayError("unexpected word \"" + words_[next_] + "\"");
}

} // namespace easel::play
