// The words of a command, taken one after the other as what they stand for.
#pragma once

#include "easel/drawing/Geometry.h"

#include <cstddef>
#include <string>
#include <vector>

namespace easel::play {

// Every reader throws PlayError, naming what is missing or wrong. `what` is the word's name in the command's
// description.
class Arguments {
  public:
    explicit Arguments(std::vector<std::string> words) : words_(std::move(words)) {}

    bool empty() const { return next_ == words_.size(); }
    // Takes the next word if it is this one.
    bool takeIf(const char* word);
    const std::string& text(const char* what);
    // A finite number.
    double number(const char* what);
    // A number, or `inf`, `-inf`, `nan`.
    double anyNumber(const char* what);
    // A finite number above 0.
    double size(const char* what);
    long integer(const char* what, long smallest, long largest);
    // Horizontal, then vertical.
    drawing::Point point();
    // All that is left, at least `fewest` points.
    std::vector<drawing::Point> points(std::size_t fewest);
    bool onOff();
    // To be called when a command has all it wants.
    void done() const;

  private:
    std::vector<std::string> words_;
    std::size_t next_ = 0;
};

// Numbers as a whole word; throws PlayError naming the word.
double parseNumber(const std::string& word, const char* what);
long parseInteger(const std::string& word, const char* what, long smallest, long largest);

} // namespace easel::play
