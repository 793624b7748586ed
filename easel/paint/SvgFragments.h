// The small parts of an SVG document: numbers, path data, attributes.
#pragma once

#include "easel/drawing/Path.h"

#include <string>
#include <string_view>

namespace easel::paint {

// Nine significant digits, without needless zeros; what is not finite becomes 0.
std::string numberText(double number);
// The "d" of a path element. Points that are not finite are left out.
std::string pathText(const drawing::Path& path);
std::string matrixText(const drawing::Affine& map);
std::string escaped(std::string_view text);

// " name="value"", with a leading blank; nothing for an empty value.
std::string attribute(std::string_view name, std::string_view value);
std::string attribute(std::string_view name, double value);
// Nothing where the value is the one that is assumed anyway.
std::string attributeUnless(double assumed, std::string_view name, double value);

} // namespace easel::paint
