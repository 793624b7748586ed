// Outlines of the drawing as the window system's painter takes them.
#pragma once

#include "easel/drawing/Path.h"

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

namespace easel::window {

inline QPointF toQt(drawing::Point p) {
    return {p.x, p.y};
}
inline drawing::Point fromQt(QPointF p) {
    return {p.x(), p.y()};
}
inline QRectF toQt(const drawing::Box& box) {
    return box.empty() ? QRectF() : QRectF(box.left, box.top, box.width(), box.height());
}

QPainterPath toPainterPath(const drawing::Path& path);

} // namespace easel::window
