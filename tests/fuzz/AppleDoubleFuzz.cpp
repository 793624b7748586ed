// Header files: any bytes are refused, or give entries that survive writing and reading.
#include "easel/classic/AppleDouble.h"

#include <cstdlib>

using namespace easel::classic;
using namespace easel::files;

namespace {

// Reads the beginning as a listing does: more only when asked for more.
void checkBeginning(ByteView bytes) {
    std::size_t size = 0;
    for (int reads = 0; reads < 4; ++reads) {
        const auto beginning = bytes.first(std::min(size, bytes.size()));
        const auto place = findFinderInfo(beginning);
        if (place.answer == FinderInfoPlace::Answer::ReadMore && place.needed <= beginning.size())
            std::abort();
        size =
            place.answer == FinderInfoPlace::Answer::ReadMore ? static_cast<std::size_t>(place.needed) : 26;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ByteView bytes(data, size);
    checkBeginning(bytes);
    const auto file = AppleDouble::read(bytes);
    if (!file)
        return 0;
    const auto place = findFinderInfo(bytes);
    if (place.answer == FinderInfoPlace::Answer::Here && place.info != file->finderInfo())
        std::abort();
    const auto written = file->write();
    if (AppleDouble::read(written) != file)
        std::abort();
    auto changed = *file;
    changed.setFinderInfo({1, 2});
    changed.setResourceFork({3});
    if (changed.finderInfo() != FinderInfo{1, 2})
        std::abort();
    return 0;
}
