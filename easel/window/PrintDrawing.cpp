// Paints a page.
#include "easel/window/PrintDrawing.h"

#include "easel/drawing/Drawing.h"
#include "easel/paint/RenderDrawing.h"

#include <QImage>
#include <QObject>
#include <QPainter>
#include <QPrinter>
#include <QString>

#include <algorithm>
#include <cmath>
#include <new>

namespace easel::window {
namespace {

// Finer than this no printer shows a gradient, and the picture grows with the square.
constexpr double kPrintResolution = 300; // dots an inch
constexpr double kUnitsAnInch = 96;

QImage pictureOf(const drawing::Drawing& drawing, double scale) {
    const auto pixels = [scale](double length) {
        return std::max(1, static_cast<int>(std::ceil(length * scale)));
    };
    QImage image(pixels(drawing.width()), pixels(drawing.height()), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        throw std::bad_alloc();
    image.fill(Qt::white);
    const paint::SurfaceView view(reinterpret_cast<std::uint32_t*>(image.bits()), image.width(),
                                  image.height(), image.bytesPerLine());
    paint::renderDrawing(drawing, view, drawing::Affine::scaling(scale, scale));
    return image;
}

} // namespace

QString printDrawing(const drawing::Drawing& drawing, QPrinter& printer) {
    try {
        const QRectF page = printer.pageRect(QPrinter::Inch);
        const double inches = std::min({1.0, page.width() * kUnitsAnInch / drawing.width(),
                                        page.height() * kUnitsAnInch / drawing.height()}) /
                              kUnitsAnInch;
        const QImage image = pictureOf(drawing, inches * kPrintResolution);
        QPainter painter;
        if (!painter.begin(&printer))
            return QObject::tr("The printer cannot be started.");
        const double dots = inches * printer.resolution();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(0, 0, drawing.width() * dots, drawing.height() * dots), image);
        return {};
    } catch (const std::bad_alloc&) {
        return QObject::tr("There is not enough memory to print this drawing.");
    }
}

} // namespace easel::window
