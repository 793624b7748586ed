// Unpacking gzip: its members, and how much of them fits.
#include "easel/files/Gzip.h"
#include "tests/fuzz/Fuzzing.h"

#include <cstddef>
#include <cstdint>

namespace {

using fuzzing::require;

constexpr std::uintmax_t kLimit = 1 << 20;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace easel::files;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto result = unpackedGzip(bytes, kLimit);
    if (result) {
        require(result->size() <= kLimit);
        require(unpackedGzip(packedGzip(*result), kLimit) == *result);
    }
    // Any bytes at all come back from what they are packed into.
    require(unpackedGzip(packedGzip(bytes), size) == bytes);
    return 0;
}
