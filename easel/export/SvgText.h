// Drawings as plain SVG files, written from the objects alone.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/export/PictureSize.h"
#include "easel/export/Progress.h"

#include <string>

namespace easel::exports {

// A whole SVG document, UTF-8, whose picture is the drawing's: outlines, strokes, groups, clip paths and
// masks, text as text, gradients as gradients fitted to their shapes, and what filters show as pictures that
// are so fine. Its size is that of the drawing times `scale`. What the drawing's own file holds besides is
// not in it. Throws Cancelled.
std::string encodeSvg(const drawing::Drawing& drawing, double scale, const Progress& progress = {},
                      double dotsPerInch = kUsualDotsPerInch);

} // namespace easel::exports
