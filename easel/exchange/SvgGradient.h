// Gradients in SVG files.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/exchange/Exchange.h"

#include <filesystem>

namespace easel::exchange {

// The gradient of the first shape, from the back, that has one.
files::Result<ImportedGradient> readSvg(const std::filesystem::path& file);
// A drawing of one square with that gradient. Nothing of the gradient is lost in it.
ExportedGradient writeSvg(const CGradientData& gradient);

// The square by itself, `size` drawing units wide.
drawing::Drawing squareWith(const CGradientData& gradient, double size);

} // namespace easel::exchange
