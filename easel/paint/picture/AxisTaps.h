// Which pixels of an image make up a pixel of the surface, and how much each counts, along one axis.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace easel::paint {

struct Tap {
    int at; // of the image, from 0 up to but without its size
    float weight;
};

// Along one axis of an image.
struct ImageAxis {
    int size = 1;
    bool repeats = false;
    bool smooth = true;
};

// Where an image is shrunk, each of its pixels counts by the share of the surface's pixel that it covers;
// where it is enlarged, the two nearest count by their distance.
class AxisTaps {
  public:
    // Surface pixel p covers the image from p * scale + offset to (p + 1) * scale + offset, for the pixels
    // from `begin` up to but without `end`.
    AxisTaps(const ImageAxis& axis, double scale, double offset, int begin, int end);

    // At least one; the weights add up to 1.
    std::span<const Tap> of(int pixel) const {
        const auto i = static_cast<std::size_t>(pixel - begin_);
        return std::span(taps_).subspan(first_[i], first_[i + 1] - first_[i]);
    }
    // The image's pixels that count anywhere lie from the lowest to the highest.
    int lowest() const { return lowest_; }
    int highest() const { return highest_; }

  private:
    void addMean(const ImageAxis& axis, double low, double high);
    void addMixed(const ImageAxis& axis, double centre);
    void add(const ImageAxis& axis, double at, double weight);

    int begin_;
    int lowest_;
    int highest_ = 0;
    std::vector<std::size_t> first_; // of each pixel, and the end of the last
    std::vector<Tap> taps_;
};

} // namespace easel::paint
