// Pictures of drawings in files of other formats.
#include "easel/paint/ExportDrawing.h"

#include "easel/paint/PdfFile.h"
#include "easel/paint/PngFile.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/paint/SvgText.h"
#include "easel/toolbox/AtomicFile.h"

#include <algorithm>
#include <new>

namespace easel::paint {

namespace {

using std::filesystem::path;
using toolbox::FileError;
using toolbox::FileOutcome;

std::string lowerCased(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return text;
}

FileOutcome problem(const path& file, const std::string& reason) {
    return FileError{file, reason, {}};
}

FileOutcome exportPng(const drawing::Drawing& drawing, const path& file, const SizeRequest& request) {
    const auto result = pictureSize(drawing.width(), drawing.height(), request);
    if (const auto* reason = std::get_if<std::string>(&result))
        return problem(file, *reason);
    const PictureSize size = std::get<PictureSize>(result);
    if (const auto reason = memoryProblem(size, availableMemory()))
        return problem(file, *reason);
    Surface surface(size.width, size.height);
    renderDrawing(drawing, surface.view(), drawing::Affine::scaling(size.scale, size.scale));
    return writePng(file, rowsOf(surface));
}

FileOutcome exportOutlines(const drawing::Drawing& drawing, const path& file, const SizeRequest& request,
                           bool asPdf) {
    const auto scale = scaleOf(drawing.width(), request);
    if (const auto* reason = std::get_if<std::string>(&scale))
        return problem(file, *reason);
    if (asPdf)
        return toolbox::replaceFile(file, encodePdf(drawing, std::get<double>(scale)));
    return toolbox::replaceFile(file, encodeSvg(drawing, std::get<double>(scale)));
}

} // namespace

FileOutcome exportDrawing(const drawing::Drawing& drawing, const path& file, const SizeRequest& size) {
    const std::string ending = lowerCased(file.extension().string());
    try {
        if (ending == ".png")
            return exportPng(drawing, file, size);
        if (ending == ".pdf" || ending == ".svg")
            return exportOutlines(drawing, file, size, ending == ".pdf");
    } catch (const std::bad_alloc&) {
        return problem(file, "there is not enough memory for the picture");
    }
    return problem(file, "the name of a picture must end in .png, .pdf or .svg");
}

} // namespace easel::paint
