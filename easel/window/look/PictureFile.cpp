// Draws a picture file with the program's own reader and painter.
#include "easel/window/look/PictureFile.h"

#include "easel/paint/RenderDrawing.h"
#include "easel/paint/pixels/Surface.h"
#include "easel/svg/Document.h"

#include <cmath>

namespace easel::window {

QImage pictureFile(const std::filesystem::path& file, QSize size, double ratio) {
    const auto drawing = svg::readFile(file);
    if (!drawing)
        return {};
    const auto pixels = [ratio](int length) { return static_cast<int>(std::ceil(length * ratio)); };
    paint::Surface surface(pixels(size.width()), pixels(size.height()));
    const drawing::Affine toSurface = drawing::Affine::scaling(size.width() * ratio / drawing->width(),
                                                               size.height() * ratio / drawing->height());
    paint::renderDrawing(*drawing, surface.view(), toSurface, 1);
    QImage image = QImage(reinterpret_cast<const uchar*>(surface.row(0)), surface.width(), surface.height(),
                          surface.stride(), QImage::Format_ARGB32_Premultiplied)
                       .copy();
    image.setDevicePixelRatio(ratio);
    return image;
}

} // namespace easel::window
