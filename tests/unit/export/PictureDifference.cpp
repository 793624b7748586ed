#include "PictureDifference.h"

#include "easel/export/PngFile.h"

#include <cstdlib>
#include <filesystem>

using easel::paint::Surface;

namespace {

int channel(std::uint32_t pixel, unsigned shift) {
    return static_cast<int>(pixel >> shift & 255);
}

int difference(std::uint32_t a, std::uint32_t b) {
    int most = 0;
    for (const unsigned shift : {0u, 8u, 16u, 24u})
        most = std::max(most, std::abs(channel(a, shift) - channel(b, shift)));
    return most;
}

bool atEdge(const Surface& surface, int x, int y) {
    for (int v = std::max(0, y - 1); v <= std::min(surface.height() - 1, y + 1); ++v)
        for (int u = std::max(0, x - 1); u <= std::min(surface.width() - 1, x + 1); ++u)
            if (difference(surface.row(v)[u], surface.row(y)[x]) > kEdgeLevels)
                return true;
    return false;
}

Surface strengthened(const Surface& one, const Surface& other) {
    Surface result(one.width(), one.height());
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            std::uint32_t pixel = 0xFF000000u;
            for (const unsigned shift : {0u, 8u, 16u}) {
                const int apart = std::abs(channel(one.row(y)[x], shift) - channel(other.row(y)[x], shift));
                pixel |= static_cast<std::uint32_t>(std::min(255, apart * 8)) << shift;
            }
            result.row(y)[x] = pixel;
        }
    return result;
}

} // namespace

std::string PictureDifference::text() const {
    return "inside " + std::to_string(mostInside) + ", at edges " + std::to_string(mostAtEdges) +
           ", far apart " + std::to_string(apart * 100) + " %";
}

PictureDifference compare(const Surface& one, const Surface& other) {
    constexpr int kFarApart = 51;
    PictureDifference result;
    int far = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x) {
            const int apart = difference(one.row(y)[x], other.row(y)[x]);
            far += apart > kFarApart;
            int& most = apart > 0 && (atEdge(one, x, y) || atEdge(other, x, y)) ? result.mostAtEdges
                                                                                : result.mostInside;
            most = std::max(most, apart);
        }
    result.apart = static_cast<double>(far) / one.width() / one.height();
    return result;
}

std::string writePictures(const std::string& name, const Surface& one, const Surface& other) {
    const std::filesystem::path folder = TEST_OUTPUT_DIR;
    std::filesystem::create_directories(folder);
    std::string problems;
    const auto write = [&](const char* which, const Surface& picture) {
        const auto written =
            easel::exports::writePng(folder / (name + "-" + which + ".png"), easel::exports::rowsOf(picture));
        if (!written)
            problems += written.error().message() + "\n";
    };
    write("one", one);
    write("other", other);
    write("difference", strengthened(one, other));
    return problems + "pictures: " + (folder / name).string() + "-{one,other,difference}.png";
}
