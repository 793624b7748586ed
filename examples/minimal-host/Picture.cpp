// The drawing as pixels, and the pixels as a file.
#include "Picture.h"

#include "GradientFill.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>

namespace {

constexpr RGBColor kGray{0x8080, 0x8080, 0x8080};
constexpr int kChannels = 3;

/// One of 65536 levels as the nearest of 256.
std::uint8_t ToByte(std::uint16_t channel) {
    return static_cast<std::uint8_t>((channel + 128) / 257);
}

} // namespace

Picture::Picture(int width, int height)
    : width_(width), height_(height),
      bytes_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * kChannels, 0xFF) {}

void Picture::Set(int x, int y, RGBColor const& color) {
    std::size_t const at =
        (static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)) *
        kChannels;
    bytes_[at] = ToByte(color.red);
    bytes_[at + 1] = ToByte(color.green);
    bytes_[at + 2] = ToByte(color.blue);
}

void Picture::Paint(HostObject const& object) {
    std::optional<GradientFill> fill;
    if (object.gradient != nullptr) {
        fill.emplace(object.gradient->GetGradientData(), object.box);
    }
    for (int y = static_cast<int>(object.box.top); y < object.box.bottom; ++y) {
        for (int x = static_cast<int>(object.box.left); x < object.box.right; ++x) {
            Set(x, y, fill ? fill->ColorAt({x + 0.5, y + 0.5}) : kGray);
        }
    }
}

void Picture::Save(std::filesystem::path const& file) const {
    std::ofstream out(file, std::ios::binary);
    out << "P6\n" << width_ << ' ' << height_ << "\n255\n";
    out.write(reinterpret_cast<char const*>(bytes_.data()), static_cast<std::streamsize>(bytes_.size()));
    if (!out.flush()) {
        throw std::runtime_error(file.string() + " cannot be written");
    }
}
