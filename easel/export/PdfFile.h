// Drawings as PDF files: outlines stay outlines, text stays text and gradients stay gradients.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/export/PictureSize.h"
#include "easel/export/Progress.h"
#include "easel/files/Bytes.h"

namespace easel::exports {

// A page and where on it the drawing is. All lengths are points, of which there are 72 to the inch.
struct PdfPage {
    double width = 0;
    double height = 0;
    double left = 0; // of the drawing, from the page's left edge
    double top = 0;
    double pointsAUnit = 1;                 // what a drawing unit is long
    double dotsPerInch = kUsualDotsPerInch; // of what can be said by a picture only
};

// A drawing unit at scale 1 is a 96th of an inch.
inline constexpr double kPointsPerUnit = 72 / kInch;

// A page that is as large as the drawing at that scale.
PdfPage pageOf(const drawing::Drawing& drawing, double scale, double dotsPerInch = kUsualDotsPerInch);

// The bytes of a PDF file with one page. What lies outside the drawing's own area is not shown. Throws
// std::bad_alloc and Cancelled.
files::Bytes encodePdf(const drawing::Drawing& drawing, const PdfPage& page, const Progress& progress = {});

} // namespace easel::exports
