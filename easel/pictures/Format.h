// The formats of pictures that are read.
#pragma once

#include <string_view>

namespace easel::pictures {

struct Format {
    const char* loader; // as the loaders of pictures call it
    const char* mediaType;
};

// By the first bytes of a file; null for a format that is not read.
const Format* formatOf(std::string_view bytes);

} // namespace easel::pictures
