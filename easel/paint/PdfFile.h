// Drawings as PDF files: outlines stay outlines and gradients stay gradients.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/toolbox/FileError.h"

namespace easel::paint {

// The bytes of a PDF file with one page, on which a drawing unit at scale 1 is a 96th of an inch. Throws
// std::bad_alloc.
toolbox::Bytes encodePdf(const drawing::Drawing& drawing, double scale);

} // namespace easel::paint
