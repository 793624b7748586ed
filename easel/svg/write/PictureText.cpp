#include "easel/svg/write/PictureText.h"

#include "easel/svg/text/DataUri.h"
#include "easel/svg/write/ElementText.h"

namespace easel::svg {

std::string pictureAttributes(const drawing::Picture& picture) {
    return attribute("width", picture.width()) + attribute("height", picture.height()) +
           attribute("preserveAspectRatio", "none") +
           attribute("href",
                     "data:" + std::string(picture.mediaType()) + ";base64," + base64Text(picture.bytes()));
}

std::string renderingText(const drawing::PlacedPicture& picture) {
    return attributeUnless("auto", "image-rendering", picture.smooth ? "auto" : "pixelated");
}

} // namespace easel::svg
