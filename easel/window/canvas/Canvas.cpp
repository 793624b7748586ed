// View, scrolling and zooming of the canvas.
#include "easel/window/canvas/Canvas.h"

#include "easel/window/look/PathConversion.h"
#include "easel/window/waiting/Interaction.h"

#include <QScrollBar>
#include <QVariantAnimation>

#include <algorithm>
#include <cmath>
#include <utility>

namespace easel::window {
namespace {

constexpr double kSmallestZoom = 0.02;
constexpr double kLargestZoom = 64;
// The ground that stays in sight around the page, in pixels.
constexpr double kMargin = 28;
// How fast dragging past the edge scrolls: pixels per frame for each pixel beyond.
constexpr double kScrollShare = 0.35;
constexpr double kLongestScroll = 60;
constexpr double kEdge = 2;
// How far the outline of a selected object reaches beyond the object, in pixels.
constexpr int kOutlineReach = 4;

double pastEdge(double at, double size) {
    if (at < kEdge)
        return at - kEdge;
    return at > size - kEdge ? at - (size - kEdge) : 0;
}

int scrollStep(double past) {
    const double step = std::clamp(std::abs(past) * kScrollShare, 4.0, kLongestScroll);
    return past == 0 ? 0 : static_cast<int>(std::copysign(step, past));
}

} // namespace

Canvas::Canvas(runtime::DrawingWindow& window, Interaction& interaction, OpenCanvases& canvases,
               QWidget* parent)
    : QAbstractScrollArea(parent), window_(window), interaction_(interaction),
      entry_(canvases, window, *this) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    // A drawing has its left where it is; scroll bars that count from the right would turn it round.
    setLayoutDirection(Qt::LeftToRight);
    setAccessibleName(tr("Drawing"));
    viewport()->setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    window_.paintInBackground([this] {
        const auto show = [this] {
            window_.markReady();
            marked();
            if (window_.takeShortage())
                Q_EMIT cannotPaint();
        };
        QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
    });
    connect(&interaction_.waiting, &Waiting::becameIdle, this, &Canvas::handOverHeld);
    connect(&interaction_.keys, &ModifierKeys::optionChanged, this, &Canvas::refreshCursor);
}

Canvas::~Canvas() {
    window_.paintAtOnce();
    interaction_.pointer.forget(*this);
}

void Canvas::setTool(CanvasTool* tool) {
    tool_ = tool;
    refreshCursor();
}

// The scroll bars' values are the pixels of the zoomed page that lie in the middle of the view, so that
// whatever is under the pointer can stay there while the zoom changes.
QPointF Canvas::origin() const {
    const double ratio = devicePixelRatioF();
    const auto along = [&](int viewSize, const QScrollBar& bar) {
        const double pixels = bar.value() - viewSize / 2.0;
        // On whole pixels of the screen, so that scrolling moves the picture and does not change it.
        return std::round(pixels * ratio) / ratio / zoom_;
    };
    return {along(viewport()->width(), *horizontalScrollBar()),
            along(viewport()->height(), *verticalScrollBar())};
}

void Canvas::updateScrollBars() {
    const drawing::Drawing& drawing = window_.drawing();
    const auto adjust = [this](QScrollBar& bar, double pageSize, int viewSize) {
        bar.setRange(0, static_cast<int>(std::ceil(pageSize * zoom_)));
        bar.setPageStep(viewSize);
        bar.setSingleStep(std::max(1, viewSize / 12));
    };
    adjust(*horizontalScrollBar(), drawing.width(), viewport()->width());
    adjust(*verticalScrollBar(), drawing.height(), viewport()->height());
    const bool fits = drawing.width() * zoom_ + 2 * kMargin <= width() &&
                      drawing.height() * zoom_ + 2 * kMargin <= height();
    const auto policy = fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded;
    setHorizontalScrollBarPolicy(policy);
    setVerticalScrollBarPolicy(policy);
    updateView();
}

void Canvas::showMiddle() {
    horizontalScrollBar()->setValue(horizontalScrollBar()->maximum() / 2);
    verticalScrollBar()->setValue(verticalScrollBar()->maximum() / 2);
}

void Canvas::updateView() {
    runtime::View view;
    view.zoom = zoom_;
    view.deviceScale = devicePixelRatioF();
    view.origin = fromQt(origin());
    view.width = viewport()->width();
    view.height = viewport()->height();
    window_.setView(view);
    viewport()->update();
}

QRectF Canvas::page() const {
    const drawing::Drawing& drawing = window_.drawing();
    return inViewport({0, 0, drawing.width(), drawing.height()});
}

QRectF Canvas::inViewport(const drawing::Box& box) const {
    if (box.empty())
        return {};
    const runtime::View& view = window_.view();
    const drawing::Point from = view.toWindow({box.left, box.top});
    const drawing::Point to = view.toWindow({box.right, box.bottom});
    return {toQt(from), toQt(to)};
}

void Canvas::zoomAbout(QPointF place, double zoom) {
    zoom = std::clamp(zoom, kSmallestZoom, kLargestZoom);
    if (zoom == zoom_)
        return;
    const drawing::Point kept = toLocal(place);
    zoom_ = zoom;
    updateScrollBars();
    const QPointF fromMiddle = place - QRectF(viewport()->rect()).center();
    horizontalScrollBar()->setValue(static_cast<int>(std::lround(kept.x * zoom_ - fromMiddle.x())));
    verticalScrollBar()->setValue(static_cast<int>(std::lround(kept.y * zoom_ - fromMiddle.y())));
    updateView();
    Q_EMIT zoomChanged(zoom_);
}

void Canvas::zoomAboutMiddle(double zoom) {
    zoomAbout(QRectF(viewport()->rect()).center(), zoom);
}

void Canvas::fit() {
    const drawing::Drawing& drawing = window_.drawing();
    const double horizontal = (width() - 2 * kMargin) / drawing.width();
    const double vertical = (height() - 2 * kMargin) / drawing.height();
    zoomAboutMiddle(std::min(horizontal, vertical));
    showMiddle();
}

void Canvas::resizeEvent(QResizeEvent*) {
    updateScrollBars();
    if (everSized_ || !isVisible())
        return;
    everSized_ = true;
    showAnew();
}

void Canvas::showAnew() {
    zoomAboutMiddle(1);
    updateScrollBars();
    const QSizeF room = QSizeF(size()) - QSizeF(2 * kMargin, 2 * kMargin);
    const QSizeF shown = page().size();
    const bool isTooLarge = shown.width() > room.width() || shown.height() > room.height();
    const bool isSmall = 2 * shown.width() < room.width() && 2 * shown.height() < room.height();
    if (isTooLarge || isSmall)
        fit();
    showMiddle();
}

void Canvas::scrollContentsBy(int, int) {
    updateView();
}

void Canvas::bringIntoView(const drawing::Box& box) {
    const QRectF area = inViewport(box);
    const QPointF off = area.center() - QRectF(viewport()->rect()).center();
    const auto reach = [](double length, double wanted) { return std::max(0.0, (length - wanted) / 2); };
    if (std::abs(off.x()) > reach(viewport()->width(), area.width()))
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + static_cast<int>(off.x()));
    if (std::abs(off.y()) > reach(viewport()->height(), area.height()))
        verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(off.y()));
}

void Canvas::selectOnly(std::size_t index) {
    drawing::Drawing& drawing = window_.drawing();
    drawing.unselectAll();
    drawing.select(index);
    bringIntoView(drawing.object(index)->bounds);
    marked();
    reportChange();
    Q_EMIT shapeChosen(index);
}

QRect Canvas::onScreen(const drawing::Box& box) const {
    const QRect area = inViewport(box).toAlignedRect() & viewport()->rect();
    return {viewport()->mapToGlobal(area.topLeft()), area.size()};
}

drawing::Point Canvas::toLocal(QPointF position) const {
    return window_.view().toDrawing(fromQt(position));
}

bool Canvas::wouldScroll(QPointF position) const {
    const auto can = [](const QScrollBar& bar, double past) {
        return (past < 0 && bar.value() > bar.minimum()) || (past > 0 && bar.value() < bar.maximum());
    };
    return can(*horizontalScrollBar(), pastEdge(position.x(), viewport()->width())) ||
           can(*verticalScrollBar(), pastEdge(position.y(), viewport()->height()));
}

void Canvas::scrollTowards(QPointF position) {
    const auto scroll = [](QScrollBar& bar, double past) { bar.setValue(bar.value() + scrollStep(past)); };
    scroll(*horizontalScrollBar(), pastEdge(position.x(), viewport()->width()));
    scroll(*verticalScrollBar(), pastEdge(position.y(), viewport()->height()));
}

// Many changes may come at once, and the regions of all of them together are found only once.
void Canvas::marked() {
    if (std::exchange(updateDue_, true))
        return;
    const auto update = [this] {
        updateDue_ = false;
        viewport()->update(markedRegion());
    };
    QMetaObject::invokeMethod(this, update, Qt::QueuedConnection);
}

QRegion Canvas::markedRegion() const {
    QRegion region;
    for (const drawing::Box& mark : window_.marks())
        region += inViewport(mark).toAlignedRect().adjusted(-kOutlineReach, -kOutlineReach, kOutlineReach,
                                                            kOutlineReach);
    return region & viewport()->rect();
}

void Canvas::presentNow() {
    viewport()->repaint(markedRegion() + shownFeedback_ + feedbackArea());
}

void Canvas::showMarquee(std::optional<QRectF> marquee) {
    const auto touch = [this](const std::optional<QRectF>& rect) {
        if (rect)
            viewport()->update(rect->toAlignedRect().adjusted(-1, -1, 1, 1));
    };
    touch(marquee_);
    touch(marquee);
    marquee_ = marquee;
}

void Canvas::flash() {
    auto* fade = new QVariantAnimation(this);
    fade->setStartValue(1.0);
    fade->setEndValue(0.0);
    fade->setDuration(350);
    connect(fade, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        flash_ = value.toDouble();
        viewport()->update();
    });
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace easel::window
