// CSS gradients: any text is refused with a reason, or gives stops in order that can be written and read
// again.
#include "easel/exchange/CssGradient.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace easel::exchange;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = readCss({reinterpret_cast<const char*>(data), size}, "fuzz.css");
    if (!read) {
        if (read.error().reason.empty())
            std::abort();
        return 0;
    }
    const auto& gradient = read->gradient;
    const auto& stops = gradient.ColorList();
    if (stops.empty() || !std::is_sorted(stops.begin(), stops.end()))
        std::abort();
    const auto again = readCss(writeCss(gradient).text, "fuzz.css");
    if (stops.size() < 10'000 && (!again || again->gradient.Type() != gradient.Type()))
        std::abort();
    return 0;
}
