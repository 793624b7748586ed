// Unpacks gzip without knowing beforehand how much comes out.
#include "easel/files/Gzip.h"

#include <algorithm>
#include <libdeflate.h>
#include <memory>
#include <new>

namespace easel::files {
namespace {

constexpr std::string_view kMagic = "\x1f\x8b";
constexpr std::size_t kTrailer = 4;       // the size of what the last member holds, least byte first
constexpr std::size_t kMostPacked = 1032; // bytes that one compressed byte can stand for
constexpr std::size_t kLeastRoom = 4096;
constexpr int kLevel = 9;

struct FreeDecompressor {
    void operator()(libdeflate_decompressor* it) const { libdeflate_free_decompressor(it); }
};
struct FreeCompressor {
    void operator()(libdeflate_compressor* it) const { libdeflate_free_compressor(it); }
};
using Decompressor = std::unique_ptr<libdeflate_decompressor, FreeDecompressor>;
using Compressor = std::unique_ptr<libdeflate_compressor, FreeCompressor>;

// What the end of the file says of its size, which is only a hint.
std::size_t statedSize(std::string_view bytes) {
    std::size_t size = 0;
    for (std::size_t i = 0; i < kTrailer && i < bytes.size(); ++i)
        size = size << 8 | static_cast<unsigned char>(bytes[bytes.size() - 1 - i]);
    return size;
}

bool onlyPadding(std::string_view bytes) {
    return bytes.find_first_not_of('\0') == std::string_view::npos;
}

// Appends what the first member holds and takes it from `bytes`.
libdeflate_result unpackMember(libdeflate_decompressor* unpacker, std::string_view& bytes,
                               std::string& result, std::size_t limit) {
    const std::size_t before = result.size();
    const std::size_t most = std::min(limit - before, bytes.size() * kMostPacked);
    std::size_t room = std::min(std::max(statedSize(bytes), kLeastRoom), most);
    for (;;) {
        result.resize(before + room);
        std::size_t used = 0;
        std::size_t made = 0;
        const libdeflate_result outcome = libdeflate_gzip_decompress_ex(
            unpacker, bytes.data(), bytes.size(), result.data() + before, room, &used, &made);
        if (outcome != LIBDEFLATE_INSUFFICIENT_SPACE || room == most) {
            result.resize(before + (outcome == LIBDEFLATE_SUCCESS ? made : 0));
            bytes.remove_prefix(outcome == LIBDEFLATE_SUCCESS ? used : 0);
            return outcome;
        }
        room = std::min(room * 2, most);
    }
}

} // namespace

bool isGzip(std::string_view bytes) {
    return bytes.substr(0, kMagic.size()) == kMagic;
}

tl::expected<std::string, GzipFault> unpackedGzip(std::string_view bytes, std::uintmax_t limit) {
    const Decompressor unpacker(libdeflate_alloc_decompressor());
    if (!unpacker)
        throw std::bad_alloc();
    const auto most = static_cast<std::size_t>(std::min<std::uintmax_t>(limit, SIZE_MAX / 2));
    std::string result;
    do {
        switch (unpackMember(unpacker.get(), bytes, result, most)) {
        case LIBDEFLATE_SUCCESS:
            break;
        case LIBDEFLATE_INSUFFICIENT_SPACE:
            return tl::unexpected(GzipFault::TooLarge);
        default:
            return tl::unexpected(GzipFault::Damaged);
        }
    } while (!onlyPadding(bytes));
    result.shrink_to_fit();
    return result;
}

std::string packedGzip(std::string_view bytes) {
    const Compressor packer(libdeflate_alloc_compressor(kLevel));
    if (!packer)
        throw std::bad_alloc();
    std::string result(libdeflate_gzip_compress_bound(packer.get(), bytes.size()), '\0');
    result.resize(
        libdeflate_gzip_compress(packer.get(), bytes.data(), bytes.size(), result.data(), result.size()));
    return result;
}

} // namespace easel::files
