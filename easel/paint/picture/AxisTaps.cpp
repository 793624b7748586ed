#include "easel/paint/picture/AxisTaps.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

namespace {
// Shares below it come from rounding.
constexpr double kNothing = 1e-6;
} // namespace

AxisTaps::AxisTaps(const ImageAxis& axis, double scale, double offset, int begin, int end)
    : begin_(begin), lowest_(axis.size - 1) {
    first_.reserve(static_cast<std::size_t>(end - begin) + 1);
    for (int pixel = begin; pixel < end; ++pixel) {
        first_.push_back(taps_.size());
        const double from = pixel * scale + offset;
        const double to = (pixel + 1) * scale + offset;
        if (!axis.smooth)
            add(axis, std::floor((from + to) / 2), 1);
        else if (std::abs(scale) >= 1)
            addMean(axis, std::min(from, to), std::max(from, to));
        else
            addMixed(axis, (from + to) / 2);
    }
    first_.push_back(taps_.size());
}

void AxisTaps::addMean(const ImageAxis& axis, double low, double high) {
    if (axis.repeats && high - low >= axis.size) {
        low = 0;
        high = axis.size;
    } else if (!axis.repeats) {
        low = std::clamp<double>(low, 0, axis.size);
        high = std::clamp<double>(high, 0, axis.size);
    }
    if (high - low <= kNothing)
        return add(axis, low > 0 ? std::ceil(low) - 1 : low, 1);
    const double begin = std::floor(low + kNothing);
    for (double at = begin; at < high - kNothing; ++at) {
        const double share = std::min(at + 1, high) - std::max(at, low);
        add(axis, at, share / (high - low));
    }
}

void AxisTaps::addMixed(const ImageAxis& axis, double centre) {
    const double before = std::floor(centre - 0.5 + kNothing);
    const double share = centre - 0.5 - before;
    if (share <= kNothing)
        return add(axis, before, 1);
    add(axis, before, 1 - share);
    add(axis, before + 1, share);
}

void AxisTaps::add(const ImageAxis& axis, double at, double weight) {
    const double inside = axis.repeats ? at - std::floor(at / axis.size) * axis.size : at;
    const int pixel = static_cast<int>(std::clamp<double>(inside, 0, axis.size - 1));
    lowest_ = std::min(lowest_, pixel);
    highest_ = std::max(highest_, pixel);
    taps_.push_back({pixel, static_cast<float>(weight)});
}

} // namespace easel::paint
