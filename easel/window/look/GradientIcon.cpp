// Paints a gradient as a drawing shows it.
#include "easel/window/look/GradientIcon.h"

#include "easel/drawing/GradientCommands.h"
#include "easel/paint/RenderDrawing.h"

#include <QImage>
#include <QPixmap>

#include <cmath>

namespace easel::window {
namespace {

// As high as a menu has icons, and as wide as their place.
constexpr double kSide = 16;

} // namespace

QIcon gradientIcon(const CGradientData& gradient, double deviceScale) {
    drawing::Object square;
    square.kind = drawing::Kind::Rect;
    square.outline = drawing::rectanglePath({0, 0, kSide, kSide});
    drawing::putGradient(square, {gradient, {}});
    const drawing::ObjectPtr object = sealed(std::move(square));

    const int pixels = static_cast<int>(std::lround(kSide * deviceScale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const paint::SurfaceView surface(reinterpret_cast<std::uint32_t*>(image.bits()), pixels, pixels,
                                     image.bytesPerLine());
    const double scale = pixels / kSide;
    paint::renderObjects({&object, 1}, surface, drawing::Affine::scaling(scale, scale));
    image.setDevicePixelRatio(deviceScale);
    return QIcon(QPixmap::fromImage(image));
}

} // namespace easel::window
