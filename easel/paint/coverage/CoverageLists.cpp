// Stretches that a shape covers evenly but not fully.
#include "easel/paint/coverage/CoverageLists.h"

namespace easel::paint {

PixelSpan* listEvenPartial(const PixelSpan& pixels, std::uint32_t covered, std::uint32_t* coverage,
                           PixelSpan* list) {
    std::fill(coverage + pixels.begin, coverage + pixels.end, covered);
    for (int begin = pixels.begin; begin < pixels.end;) {
        const int end = std::min((begin / kCoverageBlock + 1) * kCoverageBlock, pixels.end);
        *list++ = {begin, end};
        begin = end;
    }
    return list;
}

} // namespace easel::paint
