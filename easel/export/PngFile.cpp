// Writes PNG. The picture is cut into bands of rows that are filtered and compressed apart, each by whichever
// thread is free, and joined into the single stream that the format asks for.
#include "easel/export/PngFile.h"

#include "easel/export/DeflateStream.h"
#include "easel/export/PngFilter.h"
#include "easel/files/AtomicFile.h"

#include <libdeflate.h>

#include <array>
#include <atomic>
#include <new>
#include <stdexcept>

namespace easel::exports {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Levels above pack a few percent better at twice the time; for gradients most of the gain lies in the
// filter.
constexpr int kLevel = 4;
constexpr int kTrialLevel = 1;
constexpr std::size_t kBandBytes = std::size_t{1} << 20;
// One row in this many is packed with each filter to find the band's best.
constexpr int kTrialShare = 16;

class Compressor {
  public:
    explicit Compressor(int level) : state_(libdeflate_alloc_compressor(level)) {
        if (!state_)
            throw std::bad_alloc();
    }
    Compressor(const Compressor&) = delete;
    Compressor& operator=(const Compressor&) = delete;
    ~Compressor() { libdeflate_free_compressor(state_); }

    Bytes pack(const Bytes& bytes) {
        Bytes out(libdeflate_deflate_compress_bound(state_, bytes.size()));
        out.resize(libdeflate_deflate_compress(state_, bytes.data(), bytes.size(), out.data(), out.size()));
        return out;
    }

  private:
    libdeflate_compressor* state_;
};

// Undoes the multiplication by alpha, rounding to the nearest level.
std::uint8_t plainChannel(std::uint32_t channel, std::uint32_t alpha) {
    return static_cast<std::uint8_t>(std::min(255u, (channel * 255 + alpha / 2) / alpha));
}

void unpackOpaque(const std::uint32_t* pixels, int width, std::uint8_t* out) {
    for (int x = 0; x < width; ++x, out += 3) {
        out[0] = static_cast<std::uint8_t>(pixels[x] >> 16);
        out[1] = static_cast<std::uint8_t>(pixels[x] >> 8);
        out[2] = static_cast<std::uint8_t>(pixels[x]);
    }
}

void unpackWithAlpha(const std::uint32_t* pixels, int width, std::uint8_t* out) {
    for (int x = 0; x < width; ++x, out += 4) {
        const std::uint32_t alpha = pixels[x] >> 24;
        std::uint32_t red = pixels[x] >> 16 & 255;
        std::uint32_t green = pixels[x] >> 8 & 255;
        std::uint32_t blue = pixels[x] & 255;
        if (alpha != 255 && alpha != 0) {
            red = plainChannel(red, alpha);
            green = plainChannel(green, alpha);
            blue = plainChannel(blue, alpha);
        }
        out[0] = static_cast<std::uint8_t>(red);
        out[1] = static_cast<std::uint8_t>(green);
        out[2] = static_cast<std::uint8_t>(blue);
        out[3] = static_cast<std::uint8_t>(alpha);
    }
}

bool opaque(const PixelRows& picture) {
    for (int y = 0; y < picture.height; ++y) {
        std::uint32_t all = ~0u;
        for (int x = 0; x < picture.width; ++x)
            all &= picture.row(y)[x];
        if (all >> 24 != 255)
            return false;
    }
    return true;
}

struct Layout {
    std::size_t pixelBytes;
    std::size_t rowBytes;
    int bandRows;
};

Layout layoutOf(const PixelRows& picture) {
    const std::size_t pixelBytes = opaque(picture) ? 3 : 4;
    const std::size_t rowBytes = pixelBytes * static_cast<std::size_t>(picture.width);
    const auto rows = static_cast<int>(std::clamp<std::size_t>(kBandBytes / rowBytes, 1, 1 << 20));
    return {pixelBytes, rowBytes, rows};
}

// Rows of the file's own bytes, from the row above the band (zeros above the picture) to its last.
Bytes bandBytes(const PixelRows& picture, const Layout& layout, int top, int bottom) {
    Bytes rows(layout.rowBytes * static_cast<std::size_t>(bottom - top + 1));
    std::uint8_t* out = rows.data();
    for (int y = top - 1; y < bottom; ++y, out += layout.rowBytes) {
        if (y < 0)
            continue;
        if (layout.pixelBytes == 3)
            unpackOpaque(picture.row(y), picture.width, out);
        else
            unpackWithAlpha(picture.row(y), picture.width, out);
    }
    return rows;
}

// Rows `from` to `to` of the band's bytes (row 0 is the one above it), filtered, each after its filter's
// number.
Bytes filtered(const Bytes& rows, const Layout& layout, std::size_t from, std::size_t to, PngFilter filter) {
    Bytes out((layout.rowBytes + 1) * (to - from));
    std::span<std::uint8_t> rest(out);
    for (std::size_t y = from; y < to; ++y, rest = rest.subspan(layout.rowBytes + 1)) {
        const std::span<const std::uint8_t> row =
            std::span(rows).subspan(y * layout.rowBytes, layout.rowBytes);
        const std::span<const std::uint8_t> above =
            std::span(rows).subspan((y - 1) * layout.rowBytes, layout.rowBytes);
        rest[0] = static_cast<std::uint8_t>(filter);
        filterPngRow(filter, layout.pixelBytes, row, above, rest.subspan(1, layout.rowBytes));
    }
    return out;
}

PngFilter bestFilter(const Bytes& rows, const Layout& layout) {
    const std::size_t count = rows.size() / layout.rowBytes - 1;
    const std::size_t trial = (count + kTrialShare - 1) / kTrialShare;
    const std::size_t from = 1 + (count - trial) / 2;
    Compressor compressor(kTrialLevel);
    PngFilter best = PngFilter::None;
    std::size_t smallest = SIZE_MAX;
    for (const PngFilter filter : {PngFilter::Up, PngFilter::Paeth, PngFilter::Sub, PngFilter::None}) {
        const std::size_t size = compressor.pack(filtered(rows, layout, from, from + trial, filter)).size();
        if (size < smallest) {
            smallest = size;
            best = filter;
        }
    }
    return best;
}

struct Band {
    Bytes stream;
    std::uint32_t adler = 1;
    std::size_t plainSize = 0;
};

Band packBand(const PixelRows& picture, const Layout& layout, int top, int bottom) {
    const Bytes rows = bandBytes(picture, layout, top, bottom);
    const Bytes plain = filtered(rows, layout, 1, rows.size() / layout.rowBytes, bestFilter(rows, layout));
    Band band{Compressor(kLevel).pack(plain), libdeflate_adler32(1, plain.data(), plain.size()),
              plain.size()};
    if (!makeDeflatePart(band.stream, bottom == picture.height ? StreamPart::Last : StreamPart::Inner))
        throw std::logic_error("the compressor's output is not a deflate stream");
    return band;
}

void appendNumber(Bytes& out, std::uint32_t number) {
    for (const unsigned shift : {24u, 16u, 8u, 0u})
        out.push_back(static_cast<std::uint8_t>(number >> shift));
}

void appendChunk(Bytes& out, std::string_view type, std::span<const std::uint8_t> content) {
    appendNumber(out, static_cast<std::uint32_t>(content.size()));
    const std::size_t begin = out.size();
    out.insert(out.end(), type.begin(), type.end());
    out.insert(out.end(), content.begin(), content.end());
    appendNumber(out, libdeflate_crc32(0, out.data() + begin, out.size() - begin));
}

Bytes header(const PixelRows& picture, const Layout& layout) {
    constexpr std::uint8_t kColor = 2;
    constexpr std::uint8_t kColorWithAlpha = 6;
    Bytes out;
    appendNumber(out, static_cast<std::uint32_t>(picture.width));
    appendNumber(out, static_cast<std::uint32_t>(picture.height));
    const std::array<std::uint8_t, 5> rest = {8, layout.pixelBytes == 3 ? kColor : kColorWithAlpha, 0, 0, 0};
    out.insert(out.end(), rest.begin(), rest.end());
    return out;
}

} // namespace

PixelRows rowsOf(const paint::Surface& surface) {
    return {surface.row(0), surface.width(), surface.height(), surface.stride()};
}

std::vector<std::uint8_t> encodePng(const PixelRows& picture, unsigned threads, const Progress& progress) {
    const Layout layout = layoutOf(picture);
    std::vector<Band> bands(
        static_cast<std::size_t>((picture.height + layout.bandRows - 1) / layout.bandRows));
    std::atomic<std::size_t> begun = 0;
    paint::forEachPiece(bands.size(), threads, [&](std::size_t i) {
        progress.tell(static_cast<double>(begun++) / static_cast<double>(bands.size()));
        const int top = static_cast<int>(i) * layout.bandRows;
        bands[i] = packBand(picture, layout, top, std::min(picture.height, top + layout.bandRows));
    });

    // The zlib wrapper around the joined streams: its two bytes of header, and the sum of all plain bytes.
    constexpr std::array<std::uint8_t, 2> kZlibHeader = {0x78, 0x5E};
    bands.front().stream.insert(bands.front().stream.begin(), kZlibHeader.begin(), kZlibHeader.end());
    std::uint32_t adler = 1;
    std::size_t size = 1024;
    for (const Band& band : bands) {
        adler = joinedAdler32(adler, band.adler, band.plainSize);
        size += band.stream.size() + 16;
    }
    appendNumber(bands.back().stream, adler);

    Bytes out = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    out.reserve(size);
    appendChunk(out, "IHDR", header(picture, layout));
    for (const Band& band : bands)
        appendChunk(out, "IDAT", band.stream);
    appendChunk(out, "IEND", {});
    return out;
}

files::Result<> writePng(const std::filesystem::path& file, const PixelRows& picture,
                         const Progress& progress) {
    return files::replaceFile(file, encodePng(picture, paint::usefulThreads(), progress));
}

} // namespace easel::exports
