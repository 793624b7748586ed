// Words for shapes and fills.
#include "easel/window/canvas/ShapeText.h"

#include "easel/drawing/GradientCommands.h"
#include "easel/window/look/ColorText.h"

#include <QObject>

#include <cmath>

namespace easel::window {
namespace {

QString kindText(drawing::Kind kind) {
    switch (kind) {
    case drawing::Kind::Rect:
        return QObject::tr("Rectangle");
    case drawing::Kind::Ellipse:
        return QObject::tr("Ellipse");
    case drawing::Kind::Polygon:
        return QObject::tr("Polygon");
    case drawing::Kind::Path:
        return QObject::tr("Path");
    case drawing::Kind::Polyline:
        return QObject::tr("Open path");
    case drawing::Kind::Line:
        return QObject::tr("Line");
    case drawing::Kind::Picture:
        return QObject::tr("Picture");
    case drawing::Kind::Text:
        return QObject::tr("Text");
    }
    return {};
}

QString gradientText(const CGradientData& record) {
    const QString stops = QObject::tr("%1 stops").arg(record.ColorList().size());
    if (record.Type() == kLinearGradient)
        return QObject::tr("linear gradient, %1, %2\u00b0")
            .arg(stops)
            .arg(std::lround(drawing::principalAngle(static_cast<double>(record.Angle()))));
    return QObject::tr("radial gradient, %1").arg(stops);
}

} // namespace

QString shapeName(const drawing::Object& object) {
    const QString id = QString::fromStdString(object.id.text());
    const QString kind = kindText(object.kind);
    return id.isEmpty() ? kind : QObject::tr("%1 \u201c%2\u201d").arg(kind, id);
}

QString fillText(const drawing::Object& object) {
    if (const auto gradient = drawing::wholeGradientOf(object))
        return gradientText(gradient->record);
    if (const auto* const plain = std::get_if<drawing::ColorPaint>(&object.fill))
        return colorText(plain->color);
    const bool none = std::holds_alternative<drawing::NoPaint>(object.fill);
    return none ? QObject::tr("no fill") : QObject::tr("another fill");
}

} // namespace easel::window
