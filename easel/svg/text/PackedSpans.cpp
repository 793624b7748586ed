#include "easel/svg/text/PackedSpans.h"

namespace easel::svg {

using drawing::ElementSpan;

namespace {

constexpr std::uint32_t kGoesOn = 0x80;

// Differences are taken round the end of 32 bits.
std::uint32_t signLast(std::uint32_t difference) {
    return difference >> 31 == 0 ? difference << 1 : ~(difference << 1);
}

std::uint32_t signFirst(std::uint32_t number) {
    return (number & 1) == 0 ? number >> 1 : ~(number >> 1);
}

std::uint32_t take(const std::uint8_t*& next) {
    std::uint32_t number = 0;
    for (unsigned shift = 0;; shift += 7) {
        const std::uint32_t byte = *next++;
        number |= (byte & ~kGoesOn) << shift;
        if (byte < kGoesOn)
            return number;
    }
}

} // namespace

void PackedSpans::put(std::uint32_t number) {
    for (; number >= kGoesOn; number >>= 7)
        bytes_.push_back(static_cast<std::uint8_t>(number | kGoesOn));
    bytes_.push_back(static_cast<std::uint8_t>(number));
}

void PackedSpans::add(const ElementSpan& span) {
    put(signLast(span.tagBegin - last_.tagEnd));
    put(span.tagEnd - span.tagBegin);
    put(signLast(span.use - last_.use));
    last_ = span;
    ++count_;
}

std::vector<ElementSpan> PackedSpans::all() const {
    std::vector<ElementSpan> spans;
    spans.reserve(count_);
    ElementSpan span;
    const std::uint8_t* next = bytes_.data();
    for (std::size_t i = 0; i < count_; ++i) {
        span.tagBegin = span.tagEnd + signFirst(take(next));
        span.tagEnd = span.tagBegin + take(next);
        span.use += signFirst(take(next));
        spans.push_back(span);
    }
    return spans;
}

} // namespace easel::svg
