// Fits the drawing in and paints it.
#include "easel/window/keeping/Thumbnail.h"

#include "easel/paint/RenderDrawing.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace easel::window {

QPixmap thumbnail(const drawing::Drawing& drawing, QSize frame, double ratio) {
    const QSize pixels = frame * ratio;
    const double scale = std::min(pixels.width() / drawing.width(), pixels.height() / drawing.height());
    const auto length = [scale](double units) {
        return std::max(1, static_cast<int>(std::floor(units * scale)));
    };
    QImage image(length(drawing.width()), length(drawing.height()), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const paint::SurfaceView view(reinterpret_cast<std::uint32_t*>(image.bits()), image.width(),
                                  image.height(), image.bytesPerLine());
    paint::renderDrawing(drawing, view, drawing::Affine::scaling(scale, scale));
    QPixmap picture(pixels);
    picture.fill(Qt::transparent);
    QPainter(&picture).drawImage((pixels.width() - image.width()) / 2, (pixels.height() - image.height()) / 2,
                                 image);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

} // namespace easel::window
