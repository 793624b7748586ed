// GIMP gradients: any text is refused with a reason, or gives stops in order that can be written and read
// again.
#include "easel/exchange/Ggr.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace easel::exchange;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = readGgr({reinterpret_cast<const char*>(data), size}, "fuzz.ggr");
    if (!read) {
        if (read.error().reason.empty())
            std::abort();
        return 0;
    }
    const auto& gradient = *read;
    const auto& stops = gradient.gradient.ColorList();
    if (stops.empty() || !std::is_sorted(stops.begin(), stops.end()))
        std::abort();
    const auto written = writeGgr(gradient.gradient, gradient.name);
    if (!readGgr(written.text, "fuzz.ggr") && stops.size() < 10'000)
        std::abort();
    return 0;
}
