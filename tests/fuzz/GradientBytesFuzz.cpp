// Stored gradients: any bytes are refused or give a gradient that writes the same bytes.
#include "easel/classic/GradientBytes.h"

#include <cstdlib>

using namespace easel::classic;
using namespace easel::files;

namespace {

// Nearly all inputs have a wrong length or checksum; setting both right leads to what lies behind them.
Bytes sealed(ByteView bytes) {
    constexpr std::size_t kSmallest = 76;
    Bytes copy(bytes.begin(), bytes.end());
    copy.resize(std::max(copy.size(), kSmallest));
    setNumber(copy, 0, fourCharacters("KGRD"));
    setNumber(copy, 4, std::uint32_t{1});
    setNumber(copy, 8, static_cast<std::uint32_t>(copy.size()));
    std::uint32_t crc = 0xFFFFFFFF;
    for (std::size_t i = 0; i + 4 < copy.size(); ++i) {
        crc ^= copy[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) != 0 ? crc >> 1 ^ 0xEDB88320 : crc >> 1;
    }
    setNumber(copy, copy.size() - 4, ~crc);
    return copy;
}

void check(ByteView bytes) {
    const auto gradient = gradientFromBytes(bytes);
    if (!gradient)
        return;
    const auto written = gradientToBytes(*gradient);
    if (!written || gradient->ColorList().empty() || written->size() != bytes.size())
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    check({data, size});
    check(sealed({data, size}));
    return 0;
}
