// The small parts of an SVG document as text: attributes, path data and the start of the whole.
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
std::string attributeUnless(std::string_view assumed, std::string_view name, std::string_view value);
// Nothing for the identity.
std::string transformAttribute(std::string_view name, const drawing::Affine& map);

// What an attribute says to refer to the element of this id: "url(#id)".
std::string referenceTo(std::string_view id);

// Path data in absolute commands, which reads back as the same path. Points that are not finite are left out.
std::string pathText(const drawing::Path& path);

// The start tag of a document of this width and height in its own units, which is to show at `scale` times
// that size.
std::string documentTag(double width, double height, double scale = 1);

} // namespace easel::svg
