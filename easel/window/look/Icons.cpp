// The icons as path data on a grid of 24 units, stroked with round ends.
#include "easel/window/look/Icons.h"

#include "easel/svg/text/PathData.h"
#include "easel/window/look/PathConversion.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace easel::window {
namespace {

constexpr double kGrid = 24;
constexpr double kStrokeWidth = 1.6;

const char* pathData(IconName name) {
    switch (name) {
    case IconName::New:
        return "M6 3.5H14L18.5 8V20.5H6ZM14 3.5V8H18.5M12.2 11V17M9.2 14H15.2";
    case IconName::Open:
        return "M3.5 18.5V5.5H9.5L11.5 8H18.5V10.5M3.5 18.5L6.5 10.5H21.5L18.5 18.5Z";
    case IconName::Save:
        return "M4.5 4.5H16.5L19.5 7.5V19.5H4.5ZM8 4.5V9.5H15V4.5M7.5 19.5V13.5H16.5V19.5";
    case IconName::Undo:
        return "M8.5 5L4.5 9L8.5 13M4.5 9H14.5A5 5 0 0 1 14.5 19H9";
    case IconName::Redo:
        return "M15.5 5L19.5 9L15.5 13M19.5 9H9.5A5 5 0 0 0 9.5 19H15";
    case IconName::ZoomIn:
        return "M4.5 10.5A6 6 0 1 0 16.5 10.5A6 6 0 1 0 4.5 10.5M15 15L20 20M10.5 7.8V13.2M7.8 10.5H13.2";
    case IconName::ZoomOut:
        return "M4.5 10.5A6 6 0 1 0 16.5 10.5A6 6 0 1 0 4.5 10.5M15 15L20 20M7.8 10.5H13.2";
    case IconName::Fit:
        return "M4.5 9V4.5H9M15 4.5H19.5V9M19.5 15V19.5H15M9 19.5H4.5V15M8.5 9.5H15.5V14.5H8.5Z";
    case IconName::ActualSize:
        return "M3.5 5.5H20.5V18.5H3.5ZM7 10L8.5 9V15M15.5 10L17 9V15M12.2 10.8V10.9M12.2 13.6V13.7";
    case IconName::Grid:
        return "M4.5 4.5H19.5V19.5H4.5ZM9.5 4.5V19.5M14.5 4.5V19.5M4.5 9.5H19.5M4.5 14.5H19.5";
    case IconName::Magnet:
        return "M5.5 4.5V11.5A6.5 6.5 0 0 0 18.5 11.5V4.5H14.5V11.5A2.5 2.5 0 0 1 9.5 11.5V4.5ZM5.5 "
               "8.5H9.5M14.5 8.5H18.5";
    case IconName::Select:
        return "M6.5 3.5L18.5 12.2L12.8 13.2L9.8 18.8Z";
    case IconName::Options:
        return "M4 8H11M17 8H20M4 16H7M13 16H20M14 5.5V10.5M10 13.5V18.5";
    }
    return "";
}

class LineEngine : public QIconEngine {
  public:
    explicit LineEngine(IconName name) : name_(name) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QApplication::palette();
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
        painter->scale(side / kGrid, side / kGrid);
        painter->setPen(QPen(palette.color(group, QPalette::WindowText), kStrokeWidth, Qt::SolidLine,
                             Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(toPainterPath(svg::parsePathData(pathData(name_)).path));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap image(size);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, QRect({}, size), mode, state);
        return image;
    }

    QIconEngine* clone() const override { return new LineEngine(*this); }

  private:
    IconName name_;
};

} // namespace

QIcon icon(IconName name) {
    return QIcon(new LineEngine(name));
}

} // namespace easel::window
