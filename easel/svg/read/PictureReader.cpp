#include "easel/svg/read/PictureReader.h"

#include "easel/pictures/EncodedPicture.h"
#include "easel/svg/text/DataUri.h"

#include <utility>

namespace easel::svg {

namespace {

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

} // namespace

std::shared_ptr<const drawing::Picture> PictureReader::picture(std::string_view reference) {
    const auto [known, isNew] = known_.try_emplace(reference);
    if (isNew)
        known->second = read(reference);
    return known->second;
}

std::shared_ptr<const drawing::Picture> PictureReader::read(std::string_view reference) {
    if (reference.empty())
        return nullptr;
    if (!isDataUri(reference)) {
        scene_.notes.add(Unsupported::PictureElsewhere);
        return nullptr;
    }
    auto data = parseDataUri(reference);
    if (!data) {
        scene_.notes.add(Unsupported::PictureDamaged);
        return nullptr;
    }
    const pictures::Opened opened = pictures::openPicture(std::move(data->bytes));
    if (const auto* const refusal = std::get_if<pictures::Refusal>(&opened)) {
        scene_.notes.add(noteOf(*refusal));
        return nullptr;
    }
    return std::get<std::shared_ptr<const drawing::Picture>>(opened);
}

} // namespace easel::svg
