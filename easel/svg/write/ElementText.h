// The small parts of an SVG document as text: attributes and path data.
#pragma once

#include "easel/drawing/Path.h"

#include <string>
#include <string_view>

namespace easel::svg {

// Escapes what an attribute value in double quotes cannot hold.
std::string escaped(std::string_view text);

// " name="value"", with a leading blank and the value escaped; nothing for an empty value.
std::string attribute(std::string_view name, std::string_view value);
// The shortest number that reads back as the same; 0 for one that is not finite, which SVG has no text for.
std::string attribute(std::string_view name, double value);
// Nothing where the value is the one that is assumed anyway.
std::string attributeUnless(double assumed, std::string_view name, double value);

// Path data in absolute commands, which reads back as the same path. Points that are not finite are left out.
std::string pathText(const drawing::Path& path);

} // namespace easel::svg
