// GIMP's gradient files (.ggr).
#pragma once

#include "easel/exchange/Exchange.h"

#include <string>
#include <string_view>

namespace easel::exchange {

// The error names `file`.
files::Result<ImportedGradient> readGgr(std::string_view text, const std::filesystem::path& file);
// Such a file holds a ramp only, from 0 to 1.
ExportedGradient writeGgr(const CGradientData& gradient, const std::string& name);

} // namespace easel::exchange
