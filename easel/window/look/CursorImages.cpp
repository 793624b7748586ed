// Makes each cursor once for every resolution.
#include "easel/window/look/CursorImages.h"

#include "easel/window/look/PictureFile.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <map>
#include <utility>

namespace easel::window {
namespace {

constexpr int kPlainSize = 32;
constexpr int kPlainHotSpot = 15;

// A cross that shows on any ground, with its middle left free.
QCursor plainToolCursor(double ratio) {
    QImage image(QSize(kPlainSize, kPlainSize) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath cross;
    for (const QPointF direction : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)}) {
        const QPointF middle(kPlainHotSpot + 0.5, kPlainHotSpot + 0.5);
        cross.moveTo(middle + direction * 3);
        cross.lineTo(middle + direction * 10);
    }
    painter.setPen(QPen(Qt::white, 3, Qt::SolidLine, Qt::SquareCap));
    painter.drawPath(cross);
    painter.setPen(QPen(Qt::black, 1, Qt::SolidLine, Qt::SquareCap));
    painter.drawPath(cross);
    painter.end();
    return QCursor(QPixmap::fromImage(image), kPlainHotSpot, kPlainHotSpot);
}

QCursor makeCursor(long id, const classic::PluginResources& resources, double ratio) {
    if (id == kArrowCursor)
        return {Qt::ArrowCursor};
    if (id == kPlainToolCursor)
        return plainToolCursor(ratio);
    const classic::CursorResource* resource = resources.cursor(static_cast<int>(id));
    if (!resource)
        return {Qt::ArrowCursor};
    const QImage image = pictureFile(resource->file, {resource->width, resource->height}, ratio);
    if (image.isNull())
        return {Qt::ArrowCursor};
    return QCursor(QPixmap::fromImage(image), resource->hotH, resource->hotV);
}

} // namespace

QCursor cursorWithId(long id, const classic::PluginResources& resources, double ratio) {
    static std::map<std::pair<long, double>, QCursor> made;
    const auto [at, isNew] = made.try_emplace({id, ratio});
    if (isNew)
        at->second = makeCursor(id, resources, ratio);
    return at->second;
}

} // namespace easel::window
