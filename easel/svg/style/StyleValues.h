// What the values of single properties stand for.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/drawing/Style.h"
#include "easel/svg/text/Length.h"

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace easel::svg {

// Nothing from any of these for a text that is no such value.
std::optional<drawing::FillRule> parseRule(std::string_view text);
std::optional<drawing::LineJoin> parseJoin(std::string_view text);
std::optional<drawing::LineCap> parseCap(std::string_view text);
std::optional<drawing::PaintStep> parsePaintOrder(std::string_view text);
std::optional<double> parseMiterLimit(std::string_view text);
std::optional<double> parseFontSize(std::string_view text, const LengthContext& lengths);
// A length that may be nothing, but not less.
std::optional<double> parseSize(std::string_view text, const LengthContext& lengths, Axis axis);
// Of `visibility`: whether anything shows.
std::optional<bool> parseVisibility(std::string_view text);
// Of `image-rendering`: whether pixels run into each other.
std::optional<bool> parseSmoothness(std::string_view text);

// An even number of lengths; null if the line is solid.
using Dashes = std::shared_ptr<const std::vector<double>>;
std::optional<Dashes> parseDashes(std::string_view text, const LengthContext& lengths);

} // namespace easel::svg
