// Pictures of drawings in files of other formats.
#include "easel/export/ExportDrawing.h"

#include "easel/export/PdfFile.h"
#include "easel/export/PngFile.h"
#include "easel/export/SvgText.h"
#include "easel/files/AtomicFile.h"
#include "easel/paint/FilterPictures.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/text/Ascii.h"

#include <algorithm>
#include <new>

namespace easel::exports {

namespace {

// Parts of a picture are whole bands, so that its pixels are those of a picture painted at once.
constexpr int kBandsPerThread = 2;
constexpr int kPartRowsPerThread = kBandsPerThread * paint::kThreadBandRows;
// Of the time that a picture takes, about this part goes by before its pixels are packed.
constexpr double kPaintingShare = 0.6;

using files::Error;
using files::Result;
using std::filesystem::path;

void paintInParts(const drawing::Drawing& drawing, paint::Surface& surface, double scale,
                  const Progress& progress) {
    paint::FilterPictures filterPictures;
    const int rows = kPartRowsPerThread * static_cast<int>(paint::usefulThreads());
    for (int top = 0; top < surface.height(); top += rows) {
        progress.tell(static_cast<double>(top) / surface.height());
        paint::renderDrawing(
            drawing, surface.view().clippedTo({.top = top, .right = surface.width(), .bottom = top + rows}),
            drawing::Affine::scaling(scale, scale), paint::usefulThreads(), &filterPictures);
    }
}

Result<> exportPng(const drawing::Drawing& drawing, const path& file, const SizeRequest& request,
                   const Progress& progress) {
    const auto size = pictureSize(drawing.width(), drawing.height(), request);
    if (!size)
        return tl::unexpected(size.error().of(file));
    if (const auto fits = checkMemory(*size, availableMemory()); !fits)
        return tl::unexpected(fits.error().of(file));
    paint::Surface surface(size->width, size->height);
    paintInParts(drawing, surface, size->scale, progress.part(0, kPaintingShare));
    return writePng(file, rowsOf(surface), progress.part(kPaintingShare, 1));
}

Result<> exportOutlines(const drawing::Drawing& drawing, const path& file, const SizeRequest& request,
                        bool asPdf, const Progress& progress) {
    const auto scale = scaleOf(drawing.width(), request);
    if (!scale)
        return tl::unexpected(scale.error().of(file));
    if (asPdf)
        return files::replaceFile(file,
                                  encodePdf(drawing, pageOf(drawing, *scale, request.dotsPerInch), progress));
    return files::replaceFile(file, encodeSvg(drawing, *scale, progress, request.dotsPerInch));
}

} // namespace

Result<> exportDrawing(const drawing::Drawing& drawing, const path& file, const SizeRequest& size,
                       const Progress& progress) {
    const std::string ending = text::lowerCase(file.extension().string());
    try {
        if (ending == ".png")
            return exportPng(drawing, file, size, progress);
        if (ending == ".pdf" || ending == ".svg")
            return exportOutlines(drawing, file, size, ending == ".pdf", progress);
    } catch (const std::bad_alloc&) {
        return tl::unexpected(Error{file, "there is not enough memory for the picture", {}});
    } catch (const Cancelled& cancelled) {
        return tl::unexpected(
            Error{file, cancelled.what(), std::make_error_code(std::errc::operation_canceled)});
    }
    return tl::unexpected(Error{file, "the name of a picture must end in .png, .pdf or .svg", {}});
}

} // namespace easel::exports
