// What a file holds that is kept but not shown.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

enum class Unsupported : std::uint8_t {
    Text,
    Video,
    PictureFormat,
    PictureDamaged,
    PictureTooLarge,
    PictureElsewhere,
    PictureMissing,
    FontElsewhere,
    FontUnreadable,
    Foreign,
    Script,
    Animation,
    Filter,
    Mask,
    VectorEffect,
    ClipShape,
    ExternalSheet,
    External,
    Circle,
    OutOfRange,
    DeepLayer,
    LinearLight,
};
inline constexpr std::size_t kUnsupportedCount = 22;

class Notes {
  public:
    void add(Unsupported what) { seen_[static_cast<std::size_t>(what)] = true; }
    // Notes what cannot be shown of an element that is neither a shape nor holds shapes.
    void addElement(std::string_view svgName);
    // One sentence for each kind of thing.
    std::vector<std::string> sentences() const;

  private:
    std::array<bool, kUnsupportedCount> seen_{};
};

} // namespace easel::svg
