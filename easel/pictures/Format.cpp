#include "easel/pictures/Format.h"

namespace easel::pictures {

namespace {

constexpr Format kPng{"png", "image/png"};
constexpr Format kJpeg{"jpeg", "image/jpeg"};
constexpr Format kGif{"gif", "image/gif"};
constexpr Format kWebp{"webp", "image/webp"};

} // namespace

const Format* formatOf(std::string_view bytes) {
    if (bytes.starts_with("\x89PNG\r\n\x1A\n"))
        return &kPng;
    if (bytes.starts_with("\xFF\xD8\xFF"))
        return &kJpeg;
    if (bytes.starts_with("GIF87a") || bytes.starts_with("GIF89a"))
        return &kGif;
    return bytes.starts_with("RIFF") && bytes.substr(0, 12).ends_with("WEBP") ? &kWebp : nullptr;
}

} // namespace easel::pictures
