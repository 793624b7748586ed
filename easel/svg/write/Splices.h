// Rewrites parts of a text and copies the rest.
#pragma once

#include "easel/svg/text/Encoding.h"

#include <cstddef>
#include <string>
#include <vector>

namespace easel::svg {

// What takes the place of the text from `begin` to `end`.
struct Splice {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string text;
};

// The splices do not overlap; of several at one place the first given comes first.
class Splices {
  public:
    bool empty() const { return splices_.empty(); }
    void replace(std::size_t begin, std::size_t end, std::string text) {
        splices_.push_back({begin, end, std::move(text)});
    }
    void insert(std::size_t at, std::string text) { replace(at, at, std::move(text)); }

    // The part of the text from `begin` to `end`, with the splices in it.
    std::string applied(const std::string& text, std::size_t begin, std::size_t end);
    // The bytes that the text was decoded from, with the splices encoded alike: all else stays byte for byte.
    std::string applied(const std::string& text, const std::string& bytes, Encoding encoding);

  private:
    void sort();

    std::vector<Splice> splices_;
};

} // namespace easel::svg
