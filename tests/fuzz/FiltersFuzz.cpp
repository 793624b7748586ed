// Filters of damaged files, read and painted.
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

using namespace easel;

constexpr int kSide = 48;

paint::Surface painted(const drawing::Drawing& drawing) {
    paint::Surface surface(kSide, kSide);
    const double scale = kSide / std::max(drawing.width(), drawing.height());
    paint::renderDrawing(drawing, surface.view(), drawing::Affine::scaling(scale, scale), 1);
    return surface;
}

} // namespace

// No color may exceed its alpha.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto drawing = svg::readBytes({reinterpret_cast<const char*>(data), size}, "fuzz.svg");
    if (!drawing || drawing->size() > 20)
        return 0;
    const paint::Surface whole = painted(*drawing);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            for (unsigned shift = 0; shift < 24; shift += 8)
                if ((whole.row(y)[x] >> shift & 0xFF) > whole.row(y)[x] >> 24)
                    std::abort();
    return 0;
}
