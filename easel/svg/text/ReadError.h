// How the parts of the reader give up; caught where the file is read.
#pragma once

#include "easel/svg/text/Fault.h"

#include <cstddef>
#include <string>

namespace easel::svg {

struct ReadError {
    std::error_code code;
    std::string reason; // without the file's name
};

// Limits what a file may make of itself by repeating its parts: what is read may grow with the file, not
// faster.
class Budget {
  public:
    // One unit is worth a point of an outline.
    static constexpr std::size_t kBase = 8'000'000;
    static constexpr std::size_t kPerByte = 8;
    // Of text, since a letter of one byte may have an outline of a hundred points.
    static constexpr std::size_t kPerByteOfText = 128;
    static constexpr std::size_t kObject = 32;

    explicit Budget(std::size_t fileSize) : left_(kBase + kPerByte * fileSize) {}
    // For a file that is read along.
    void allow(std::size_t fileSize) { left_ += kPerByte * fileSize; }
    // For so many bytes between tags, which may be text that is shown.
    void allowText(std::size_t bytes) { left_ += kPerByteOfText * bytes; }
    void spend(std::size_t units) {
        if (units > left_)
            throw ReadError{Fault::TooComplex,
                            "it repeats its shapes so often that they do not fit into memory"};
        left_ -= units;
    }

  private:
    std::size_t left_;
};

} // namespace easel::svg
