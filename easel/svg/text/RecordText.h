// The own values of a gradient record and its remainder as attributes beside their standard form.
#pragma once

#include "easel/drawing/Remainder.h"
#include "host/Gradient.h"

#include <optional>
#include <string>
#include <string_view>

namespace easel::svg {

inline constexpr const char* kRecordAttribute = "data-easel-record";
inline constexpr const char* kOpacityAttribute = "data-easel-opacity";
inline constexpr const char* kEllipseAttribute = "data-easel-ellipse";

// The values of these attributes; empty where there is none.
struct RecordTexts {
    const char* record = "";
    const char* opacity = "";
    const char* ellipse = "";
};

// "type angle startH startV endH endV startRadius endRadius;position red green blue;..." with numbers that
// read back as the same.
std::string recordText(const CGradientData& record);
// Nothing if the text is damaged.
std::optional<CGradientData> parseRecord(std::string_view text);

// "position opacity;..." and "a b c d"; empty where the remainder has none.
std::string opacityText(const drawing::Remainder& remainder);
std::string ellipseText(const drawing::Remainder& remainder);
// Nothing if either text is damaged.
std::optional<drawing::Remainder> parseRemainder(std::string_view opacity, std::string_view ellipse);

} // namespace easel::svg
