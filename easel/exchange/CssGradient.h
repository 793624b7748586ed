// Gradients as CSS writes them: linear-gradient() and radial-gradient().
#pragma once

#include "easel/exchange/Exchange.h"

#include <string_view>

namespace easel::exchange {

/// Takes the first gradient anywhere in the text, so a declaration or a style sheet will do.
ImportOutcome readCss(std::string_view text);
ExportedGradient writeCss(const CGradientData& gradient);

} // namespace easel::exchange
