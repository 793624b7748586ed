// What the canvas shows: the ground, the page with the drawing, and what lies on top of it.
#include "easel/paint/pixels/Surface.h"
#include "easel/window/canvas/Canvas.h"
#include "easel/window/look/PathConversion.h"
#include "easel/window/look/Theme.h"

#include <QPaintEvent>
#include <QPainter>

#include <cmath>
#include <new>
#include <utility>

namespace easel::window {
namespace {

// Outlines of more objects than this would hide the drawing, and take their time.
constexpr std::size_t kMostOutlines = 2000;
constexpr int kShadowSteps = 8;
// Of lines on top of the drawing, and of those lines with what makes them visible; in pixels.
constexpr double kLineWidth = 1.5;
constexpr double kOutlineWidth = kLineWidth + 2;

// A rectangle with its edges on whole pixels of the screen.
QRectF onPixels(const QRectF& rect, double ratio) {
    const auto snap = [ratio](double at) { return std::round(at * ratio) / ratio; };
    return {QPointF(snap(rect.left()), snap(rect.top())), QPointF(snap(rect.right()), snap(rect.bottom()))};
}

void drawGround(QPainter& painter, const QRectF& exposed, const QRectF& page) {
    const CanvasColors colors = canvasColors();
    painter.fillRect(exposed, colors.surround);
    if (page.isEmpty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.shadow);
    for (int step = 1; step <= kShadowSteps; ++step)
        painter.drawRoundedRect(page.adjusted(-step, -step + 2, step, step + 2), step, step);
    painter.setBrush(colors.pageEdge);
    painter.drawRect(page.adjusted(-1, -1, 1, 1));
    painter.restore();
}

void drawPage(QPainter& painter, const QRectF& exposed, const QRectF& page, const paint::Surface& surface,
              double ratio) {
    const QImage image(reinterpret_cast<const uchar*>(surface.row(0)), surface.width(), surface.height(),
                       surface.stride(), QImage::Format_RGB32);
    const QRectF target = onPixels(exposed & page, ratio);
    const QRectF source(target.topLeft() * ratio, target.size() * ratio);
    painter.drawImage(target, image, source);
}

// A line in the given color between two lines of the ground's color, seen on anything.
void strokeVisibly(QPainter& painter, const QPainterPath& path, const QColor& color) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(QColor(255, 255, 255, 190), kOutlineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.setPen(QPen(color, kLineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
}

void drawSelection(QPainter& painter, const runtime::DrawingWindow& window, const QRectF& exposed,
                   const QColor& accent) {
    const runtime::View& view = window.view();
    const drawing::Affine toWindow{
        view.zoom, 0, 0, view.zoom, -view.origin.x * view.zoom, -view.origin.y * view.zoom};
    const double reach = kOutlineWidth / view.zoom;
    drawing::Box area;
    area.add(view.toDrawing(fromQt(exposed.topLeft())));
    area.add(view.toDrawing(fromQt(exposed.bottomRight())));
    for (const drawing::ObjectPtr& object : window.drawing().someSelected(kMostOutlines))
        if (!area.intersection(object->bounds.grownBy(reach)).empty())
            strokeVisibly(painter, toPainterPath(object->outline.transformed(toWindow)), accent);
}

void drawFeedback(QPainter& painter, const runtime::DrawingWindow& window) {
    for (const runtime::ConstructionLine& line : window.feedback()) {
        QPainterPath path(toQt(window.view().toWindow(line.from)));
        path.lineTo(toQt(window.view().toWindow(line.to)));
        strokeVisibly(painter, path, Qt::black);
        painter.setPen(QPen(Qt::black, kLineWidth));
        painter.setBrush(Qt::white);
        painter.drawEllipse(path.elementAt(0), 3.5, 3.5);
        painter.drawEllipse(path.currentPosition(), 3.5, 3.5);
    }
}

} // namespace

void Canvas::paintMarked() {
    try {
        window_.paintMarked();
        canPaint_ = true;
    } catch (const std::bad_alloc&) {
        if (std::exchange(canPaint_, false))
            Q_EMIT cannotPaint();
    }
}

void Canvas::paintEvent(QPaintEvent* event) {
    const double ratio = devicePixelRatioF();
    if (window_.view().deviceScale != ratio)
        updateView();
    // The image gets all that is marked, of which the window may be asked to show only a part for now.
    const QRegion later = markedRegion() - event->region();
    paintMarked();
    viewport()->update(later);

    QPainter painter(viewport());
    const QRectF exposed = QRectF(event->rect());
    // A disabled canvas waits for its drawing and shows the ground alone.
    const QRectF shownPage = isEnabled() && canPaint_ ? onPixels(page(), ratio) : QRectF();
    if (!shownPage.contains(exposed))
        drawGround(painter, exposed, shownPage);
    if (!canPaint_)
        return;
    for (const QRect& part : event->region())
        drawPage(painter, part, shownPage, window_.image(), ratio);

    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette().color(QPalette::Highlight);
    drawSelection(painter, window_, exposed, accent);
    drawFeedback(painter, window_);
    shownFeedback_ = feedbackArea();
    if (marquee_) {
        QColor veil = accent;
        veil.setAlphaF(0.12F);
        painter.setPen(QPen(accent, 1));
        painter.setBrush(veil);
        painter.drawRect(*marquee_);
    }
    if (flash_ > 0) {
        QColor color = accent;
        color.setAlphaF(static_cast<float>(flash_));
        painter.setPen(QPen(color, 6));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(viewport()->rect());
    }
}

QRect Canvas::feedbackArea() const {
    if (window_.feedback().empty())
        return {};
    drawing::Box box;
    for (const runtime::ConstructionLine& line : window_.feedback()) {
        box.add(line.from);
        box.add(line.to);
    }
    return inViewport(box).toAlignedRect().adjusted(-6, -6, 6, 6);
}

} // namespace easel::window
