// Gradients as CSS writes them: linear-gradient() and radial-gradient().
#pragma once

#include "easel/exchange/Exchange.h"

#include <string_view>

namespace easel::exchange {

// Takes the first gradient anywhere in the text, so a declaration or a style sheet will do. The error
// names `file`.
files::Result<ImportedGradient> readCss(std::string_view text, const std::filesystem::path& file);
ExportedGradient writeCss(const CGradientData& gradient);

} // namespace easel::exchange
