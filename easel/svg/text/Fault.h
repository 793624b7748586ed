// What can be wrong with the content of an SVG file, as the code of an error.
#pragma once

#include <system_error>

namespace easel::svg {

enum class Fault {
    Empty = 1,
    Damaged, // compressed bytes that cannot be unpacked
    NotXml,  // also where the file is cut off
    NotSvg,
    TooComplex, // shapes or texts repeated without measure
};

std::error_code make_error_code(Fault fault);

} // namespace easel::svg

template <> struct std::is_error_code_enum<easel::svg::Fault> : std::true_type {};
