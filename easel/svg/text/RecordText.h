// A gradient record's own values as the text of an attribute beside its standard form.
#pragma once

#include "host/Gradient.h"

#include <optional>
#include <string>
#include <string_view>

namespace easel::svg {

inline constexpr const char* kRecordAttribute = "data-easel-record";

// "type angle startH startV endH endV startRadius endRadius;position red green blue;..." with numbers that
// read back as the same.
std::string recordText(const CGradientData& record);
// Nothing if the text is damaged.
std::optional<CGradientData> parseRecord(std::string_view text);

} // namespace easel::svg
