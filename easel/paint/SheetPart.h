// A sheet of pixels as what lies on it is kept: wherever it is scrolled to by whole pixels, it is the same.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/paint/pixels/PixelGeometry.h"

namespace easel::paint {

struct SheetPart {
    drawing::Affine toSheet; // from the drawing, whose origin lies in the sheet's first pixel
    PixelRect seen;          // of the sheet
    PixelPoint offset;       // pixel (x, y) of the sheet is (x + h, y + v) of the surface
};

// For a sheet to which `toSheet` maps the drawing and of which the pixels `seen` are seen, and a surface that
// is a part of it, to which `toSurface` does.
SheetPart partOf(const drawing::Affine& toSheet, const PixelRect& seen, const drawing::Affine& toSurface);

// The same for what is kept while the drawing is scrolled to and fro: roundings of the scroll position have
// no part in it, and a little more is seen, so that the next small step needs nothing new.
SheetPart steadyPartOf(const drawing::Affine& toSheet, const PixelRect& seen,
                       const drawing::Affine& toSurface);

} // namespace easel::paint
