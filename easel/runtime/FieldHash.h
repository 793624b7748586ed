// The keys under which equal resources are shared.
#pragma once

#include "host/Gradient.h"

#include <array>
#include <bit>
#include <cstdint>

namespace easel::runtime {

// The 32-bit FNV-1a hash, fed with whole numbers, lowest byte first.
class FieldHash {
  public:
    void add(std::uint64_t value, int bytes) {
        for (; bytes > 0; --bytes, value >>= 8)
            hash_ = (hash_ ^ static_cast<std::uint8_t>(value)) * 16777619u;
    }
    // Adding 0 turns a negative zero into the ordinary one: equal numbers have equal hashes.
    void add(double value) { add(std::bit_cast<std::uint64_t>(value + 0.0), 8); }
    void add(float value) { add(std::bit_cast<std::uint32_t>(value + 0.0F), 4); }
    void add(const TPoint<double>& point) {
        add(point.v);
        add(point.h);
    }
    void add(const RGBColor& color) {
        add(color.red, 2);
        add(color.green, 2);
        add(color.blue, 2);
    }
    std::uint32_t value() const { return hash_; }

  private:
    std::uint32_t hash_ = 2166136261u;
};

// Depends on every field of the record and on every stop.
std::uint32_t hashOf(const CGradientData& record);
// Depends on every row of a fill pattern.
std::uint32_t hashOf(const std::array<std::uint8_t, 8>& rows);

} // namespace easel::runtime
