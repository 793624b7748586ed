#include "easel/svg/read/PictureReader.h"

#include "easel/files/Gzip.h"
#include "easel/files/WholeFile.h"
#include "easel/pictures/EncodedPicture.h"
#include "easel/svg/read/PlaceBeside.h"
#include "easel/svg/text/DataUri.h"
#include "easel/svg/text/Scanner.h"

#include <utility>

namespace easel::svg {

namespace {

constexpr std::uintmax_t kLargestFile = std::uintmax_t{256} << 20; // bytes, also of what is unpacked

Unsupported noteOf(pictures::Refusal refusal) {
    switch (refusal) {
    case pictures::Refusal::UnknownFormat:
        return Unsupported::PictureFormat;
    case pictures::Refusal::TooLarge:
        return Unsupported::PictureTooLarge;
    case pictures::Refusal::Damaged:
        break;
    }
    return Unsupported::PictureDamaged;
}

// Whether it is worth reading as a drawing.
bool mayBeDrawing(std::string_view bytes) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    return trimmed(bytes).starts_with('<') || bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

} // namespace

PictureContent PictureReader::content(std::string_view reference) {
    const auto [known, isNew] = known_.try_emplace(reference);
    if (isNew)
        known->second = read(trimmed(reference));
    return known->second;
}

PictureContent PictureReader::read(std::string_view reference) {
    if (reference.empty())
        return {};
    if (!isDataUri(reference))
        return readBeside(reference);
    auto data = parseDataUri(reference);
    return data ? opened(std::move(data->bytes), {}) : refused(Unsupported::PictureDamaged);
}

PictureContent PictureReader::readBeside(std::string_view reference) {
    const auto place = placeBeside(scene_.around.file, reference);
    if (!place)
        return refused(Unsupported::PictureElsewhere);
    auto bytes = files::readWholeFile(*place, kLargestFile);
    if (!bytes)
        return refused(Unsupported::PictureMissing);
    scene_.budget.allow(bytes->size());
    return opened({bytes->begin(), bytes->end()}, *place);
}

PictureContent PictureReader::opened(std::string bytes, const std::filesystem::path& file) {
    if (files::isGzip(bytes)) {
        auto unpacked = files::unpackedGzip(bytes, kLargestFile);
        if (!unpacked)
            return refused(Unsupported::PictureDamaged);
        bytes = *std::move(unpacked);
    }
    if (mayBeDrawing(bytes))
        return std::make_shared<const ShapePicture>(ShapePicture{std::move(bytes), file});
    const pictures::Opened result = pictures::openPicture(std::move(bytes));
    if (const auto* const refusal = std::get_if<pictures::Refusal>(&result))
        return refused(noteOf(*refusal));
    return std::get<std::shared_ptr<const drawing::Picture>>(result);
}

PictureContent PictureReader::refused(Unsupported what) {
    scene_.notes.add(what);
    return {};
}

} // namespace easel::svg
