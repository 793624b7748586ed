// How large a picture of a drawing is to be, and whether there is memory for it.
#include "easel/export/PictureSize.h"

#include <cmath>
#include <fstream>

namespace easel::exports {

using files::Error;
using files::Result;

namespace {

// A side this little over a whole pixel is rounding, not a further pixel.
constexpr double kRounding = 1e-6;

std::string plain(double number) {
    std::string text = std::to_string(std::llround(std::min(number, 9e18)));
    return text;
}

int pixels(double side) {
    return std::max(1, static_cast<int>(std::ceil(side - kRounding)));
}

} // namespace

Result<double> scaleOf(double drawingWidth, const SizeRequest& request) {
    const double scale = request.width ? *request.width / drawingWidth : request.scale.value_or(1);
    if (!(scale > 0) || !std::isfinite(scale))
        return tl::unexpected(Error{{}, "the width or scale asked for is not a number above 0", {}});
    return scale;
}

Result<PictureSize> pictureSize(double drawingWidth, double drawingHeight, const SizeRequest& request) {
    const auto scale = scaleOf(drawingWidth, request);
    if (!scale)
        return tl::unexpected(scale.error());
    const double width = drawingWidth * *scale;
    const double height = drawingHeight * *scale;
    if (!(width <= kLongestSide && height <= kLongestSide))
        return tl::unexpected(Error{{},
                                    "the picture would have " + plain(width) + " by " + plain(height) +
                                        " pixels; no side can be longer than " + std::to_string(kLongestSide),
                                    {}});
    return PictureSize{*scale, pixels(width), pixels(height)};
}

std::optional<std::uint64_t> availableMemory() {
    std::ifstream file("/proc/meminfo");
    std::string name;
    std::uint64_t kilobytes = 0;
    for (std::string unit; file >> name >> kilobytes; std::getline(file, unit))
        if (name == "MemAvailable:")
            return kilobytes * 1024;
    return std::nullopt;
}

Result<> checkMemory(const PictureSize& size, std::optional<std::uint64_t> available) {
    constexpr std::uint64_t kMegabyte = 1'000'000;
    if (!available || size.bytes() <= *available)
        return {};
    return tl::unexpected(Error{{},
                                "a picture of " + std::to_string(size.width) + " by " +
                                    std::to_string(size.height) + " pixels needs " +
                                    std::to_string(size.bytes() / kMegabyte) + " MB of memory, and " +
                                    std::to_string(*available / kMegabyte) + " MB are free",
                                {}});
}

} // namespace easel::exports
