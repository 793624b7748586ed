#include "easel/svg/write/Splices.h"

#include <algorithm>
#include <tuple>

namespace easel::svg {

void Splices::sort() {
    // What is inserted at a place goes before what is removed from there on.
    std::stable_sort(splices_.begin(), splices_.end(), [](const Splice& a, const Splice& b) {
        return std::tie(a.begin, a.end) < std::tie(b.begin, b.end);
    });
}

std::string Splices::applied(const std::string& text, std::size_t begin, std::size_t end) {
    sort();
    std::string result;
    std::size_t at = begin;
    for (const Splice& splice : splices_) {
        if (splice.begin < at || splice.end > end)
            continue;
        result.append(text, at, splice.begin - at);
        result += splice.text;
        at = splice.end;
    }
    result.append(text, at, end - at);
    return result;
}

std::string Splices::applied(const std::string& text, const std::string& bytes, Encoding encoding) {
    sort();
    std::vector<std::size_t> places;
    for (const Splice& splice : splices_) {
        places.push_back(splice.begin);
        places.push_back(splice.end);
    }
    const std::vector<std::size_t> inBytes = byteOffsets(text, encoding, places);
    std::string result;
    std::size_t at = 0;
    for (std::size_t i = 0; i < splices_.size(); ++i) {
        result.append(bytes, at, inBytes[2 * i] - at);
        result += encode(splices_[i].text, encoding);
        at = inBytes[2 * i + 1];
    }
    return result.append(bytes, at);
}

} // namespace easel::svg
