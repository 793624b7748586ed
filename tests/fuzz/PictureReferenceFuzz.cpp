// Data URIs, references to files and pictures of pixels, whatever they say.
#include "easel/pictures/EncodedPicture.h"
#include "easel/svg/read/PlaceBeside.h"
#include "easel/svg/text/DataUri.h"
#include "tests/fuzz/Fuzzing.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace {

using fuzzing::require;
using namespace easel;

// Decoding more than this only takes time.
constexpr std::int64_t kMostPixels = 1 << 20;

void decode(const std::string& bytes) {
    const pictures::Opened opened = pictures::openPicture(bytes);
    const auto* const picture = std::get_if<std::shared_ptr<const drawing::Picture>>(&opened);
    if (!picture)
        return;
    const std::int64_t size = std::int64_t{(*picture)->width()} * (*picture)->height();
    require(size > 0 && size <= pictures::kMostPixels);
    if (size > kMostPixels)
        return;
    if (const auto pixels = (*picture)->pixels())
        require(std::int64_t(pixels->pixels.size()) == size);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    // No reference may lead out of the folder.
    const std::filesystem::path drawing = "/proc/self/drawing.svg";
    if (const auto place = svg::placeBeside(drawing, text))
        require(place->string().starts_with("/proc/"));
    if (const auto uri = svg::parseDataUri(text)) {
        require(svg::parseDataUri("data:;base64," + svg::base64Text(uri->bytes))->bytes == uri->bytes);
        decode(uri->bytes);
    }
    decode(text);
    return 0;
}
