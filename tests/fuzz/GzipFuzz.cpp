// Unpacking gzip: its members, and how much of them fits.
#include "easel/files/Gzip.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::uintmax_t kLimit = 1 << 20;

void require(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace easel::files;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto result = unpackedGzip(bytes, kLimit);
    const auto* const text = std::get_if<std::string>(&result);
    if (text) {
        require(text->size() <= kLimit);
        const auto again = unpackedGzip(packedGzip(*text), kLimit);
        require(std::get<std::string>(again) == *text);
    }
    // Any bytes at all come back from what they are packed into.
    require(std::get<std::string>(unpackedGzip(packedGzip(bytes), size)) == bytes);
    return 0;
}
