// Mouse, keyboard and wheel on the canvas.
#include "easel/window/canvas/Canvas.h"

#include "easel/runtime/Process.h"
#include "easel/window/look/CursorImages.h"
#include "easel/window/look/PathConversion.h"
#include "easel/window/waiting/Interaction.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace easel::window {
namespace {

// One notch of a wheel, in the units of wheel events.
constexpr double kNotch = 120;
constexpr double kZoomPerNotch = 1.2;
// Held with a click, they pick up what is there, whatever the tool.
constexpr Qt::KeyboardModifiers kPickUpKeys = Qt::AltModifier | Qt::ShiftModifier;

} // namespace

void Canvas::mousePressEvent(QMouseEvent* event) {
    if (interaction_.waiting.busy())
        return;
    const bool pans =
        event->button() == Qt::MiddleButton || (event->button() == Qt::LeftButton && spaceDown_);
    const bool picksUp = picksUp_ || (event->modifiers() & kPickUpKeys) == kPickUpKeys;
    if (pans)
        startPan(event->position());
    else if (event->button() == Qt::LeftButton && picksUp)
        pickUp(event->position());
    else if (event->button() == Qt::LeftButton && tool_)
        tool_->press(*this, *event);
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
    Q_EMIT pointerAt(toQt(toLocal(event->position())));
    if (panning()) {
        const QPointF by = event->position() - *panFrom_;
        horizontalScrollBar()->setValue(panStart_.x() - static_cast<int>(by.x()));
        verticalScrollBar()->setValue(panStart_.y() - static_cast<int>(by.y()));
        return;
    }
    if (interaction_.waiting.busy()) {
        interaction_.pointer.moved(event->position());
        return;
    }
    if (!tool_)
        return;
    tool_->move(*this, *event);
    if (event->buttons() == Qt::NoButton)
        refreshCursor();
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
    if (panning() && event->button() != Qt::RightButton) {
        endPan();
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    if (interaction_.waiting.busy())
        interaction_.pointer.released(event->position());
    else if (tool_)
        tool_->release(*this, *event);
}

// A quick user presses again before the plug-in has heard that the button went up. That press and what comes
// after it wait until the gesture before is over.
bool Canvas::holdsBack(const QEvent& event) {
    const QEvent::Type type = event.type();
    const bool presses = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    const bool follows = type == QEvent::MouseMove || type == QEvent::MouseButtonRelease;
    if (!presses && !(follows && !held_.empty()))
        return false;
    if (!interaction_.waiting.busy() || !interaction_.pointer.over())
        return false;
    held_.emplace_back(static_cast<const QMouseEvent&>(event).clone());
    return true;
}

void Canvas::handOverHeld() {
    for (std::unique_ptr<QMouseEvent>& event : std::exchange(held_, {}))
        QCoreApplication::postEvent(viewport(), event.release());
}

void Canvas::pickUpNext() {
    picksUp_ = true;
    viewport()->setCursor(Qt::CrossCursor);
}

void Canvas::pickUp(QPointF place) {
    picksUp_ = false;
    refreshCursor();
    Q_EMIT pickedUp(toLocal(place));
}

void Canvas::breakOff() {
    picksUp_ = false;
    if (tool_)
        tool_->breakOff(*this);
    refreshCursor();
}

void Canvas::startPan(QPointF from) {
    panFrom_ = from;
    panStart_ = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void Canvas::endPan() {
    panFrom_.reset();
    if (spaceDown_)
        viewport()->setCursor(Qt::OpenHandCursor);
    else
        refreshCursor();
}

void Canvas::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) != 0) {
        zoomAbout(event->position(), zoom_ * std::pow(kZoomPerNotch, event->angleDelta().y() / kNotch));
        event->accept();
        return;
    }
    const bool precise = !event->pixelDelta().isNull();
    QPointF by = precise ? QPointF(event->pixelDelta()) : QPointF(event->angleDelta()) / kNotch * 60;
    if ((event->modifiers() & Qt::ShiftModifier) != 0 && by.x() == 0)
        by = {by.y(), 0};
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - static_cast<int>(by.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() - static_cast<int>(by.y()));
    event->accept();
}

void Canvas::pinch(const QNativeGestureEvent& event) {
    if (event.gestureType() == Qt::ZoomNativeGesture)
        zoomAbout(event.position(), zoom_ * (1 + event.value()));
}

void Canvas::keyPressEvent(QKeyEvent* event) {
    if (interaction_.waiting.busy()) {
        if (event->key() == Qt::Key_Escape)
            interaction_.waiting.cancelAll();
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        breakOff();
        return;
    }
    if (event->key() == Qt::Key_Space) {
        if (!event->isAutoRepeat()) {
            spaceDown_ = true;
            viewport()->setCursor(Qt::OpenHandCursor);
        }
        return;
    }
    if (!tool_ || !tool_->key(*this, *event))
        QAbstractScrollArea::keyPressEvent(event);
}

bool Canvas::focusNextPrevChild(bool next) {
    const std::size_t count = window_.drawing().size();
    const std::vector<std::size_t> selection = window_.drawing().selection();
    if (interaction_.waiting.busy())
        return false;
    if (count == 0 || (!selection.empty() && (next ? selection.back() + 1 == count : selection.front() == 0)))
        return QAbstractScrollArea::focusNextPrevChild(next);
    if (selection.empty())
        selectOnly(next ? 0 : count - 1);
    else
        selectOnly(next ? selection.back() + 1 : selection.front() - 1);
    return true;
}

void Canvas::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        spaceDown_ = false;
        if (!panning())
            refreshCursor();
        return;
    }
    QAbstractScrollArea::keyReleaseEvent(event);
}

void Canvas::focusOutEvent(QFocusEvent* event) {
    spaceDown_ = false;
    QAbstractScrollArea::focusOutEvent(event);
}

// While the plug-in follows the mouse, no key is a command.
bool Canvas::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && interaction_.waiting.busy()) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

bool Canvas::viewportEvent(QEvent* event) {
    if (holdsBack(*event))
        return true;
    if (event->type() == QEvent::NativeGesture)
        pinch(static_cast<const QNativeGestureEvent&>(*event));
    if (event->type() == QEvent::Leave)
        Q_EMIT pointerLeft();
    if (event->type() == QEvent::Enter)
        refreshCursor();
    return QAbstractScrollArea::viewportEvent(event);
}

void Canvas::refreshCursor() {
    if (tool_ && !interaction_.waiting.busy() && !panning() && !spaceDown_ && !picksUp_)
        tool_->updateCursor(*this);
}

void Canvas::showCursor(long id) {
    viewport()->setCursor(cursorWithId(id, window_.process().plugin().resources(), devicePixelRatioF()));
}

} // namespace easel::window
