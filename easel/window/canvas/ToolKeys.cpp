// Finds the places where the mouse would do what a key stands for.
#include "easel/window/canvas/ToolKeys.h"

#include "easel/drawing/GradientCommands.h"
#include "easel/runtime/PreviewGestures.h"
#include "easel/window/canvas/Canvas.h"
#include "easel/window/look/PathConversion.h"
#include "easel/window/waiting/ArrowKeys.h"

#include <QKeyEvent>
#include <QObject>

#include <cmath>
#include <numbers>

namespace easel::window {
namespace {

using drawing::Box;
using drawing::Point;

// A covered shape is looked for at so many places along each side of its bounds.
constexpr int kTries = 24;
// Long enough to be a drag; in screen pixels.
constexpr double kLine = 40;

bool lieAt(const Canvas& canvas, std::size_t index, Point place) {
    return canvas.drawingWindow().drawing().pick(place, kToolReach / canvas.zoom(), gradientKinds()) == index;
}

// A place where a press means this shape.
std::optional<Point> placeOf(const Canvas& canvas, std::size_t index) {
    const Box& bounds = canvas.drawingWindow().drawing().object(index)->bounds;
    if (lieAt(canvas, index, bounds.centre()))
        return bounds.centre();
    for (int row = 0; row <= kTries; ++row)
        for (int column = 0; column <= kTries; ++column) {
            const Point place{bounds.left + bounds.width() * column / kTries,
                              bounds.top + bounds.height() * row / kTries};
            if (lieAt(canvas, index, place))
                return place;
        }
    return std::nullopt;
}

QPointF inView(const Canvas& canvas, Point place) {
    return toQt(canvas.drawingWindow().view().toWindow(place));
}

ToolKeyAnswer click(Canvas& canvas, std::size_t index) {
    const auto place = placeOf(canvas, index);
    if (!place)
        return {};
    canvas.bringIntoView(Box{place->x, place->y, place->x, place->y}.grownBy(kLine / canvas.zoom()));
    return {ToolGesture{inView(canvas, *place), {}}};
}

ToolKeyAnswer turn(Canvas& canvas, std::size_t index, double degrees) {
    ToolKeyAnswer answer = click(canvas, index);
    if (answer.gesture) {
        const double angle = degrees / 180 * std::numbers::pi;
        answer.gesture->way = {answer.gesture->press +
                               QPointF(kLine * std::cos(angle), -kLine * std::sin(angle))};
    }
    return answer;
}

ToolKeyAnswer pressAt(Canvas& canvas, std::size_t index, Point place) {
    if (!lieAt(canvas, index, place))
        return {};
    return {ToolGesture{inView(canvas, place), {}}};
}

std::optional<ToolKeyAnswer> answerToArrow(Canvas& canvas, std::size_t index, const QKeyEvent& event) {
    const QPoint arrow = arrowOf(event.key());
    const drawing::Object& object = *canvas.drawingWindow().drawing().object(index);
    const auto gradient = wholeGradientOf(object);
    if (arrow.isNull() || !gradient)
        return std::nullopt;
    const bool shift = (event.modifiers() & Qt::ShiftModifier) != 0;
    if (gradient->record.Type() == kLinearGradient) {
        const auto angle = static_cast<double>(gradient->record.Angle());
        return turn(canvas, index, runtime::nextAngle(angle, turnOf(arrow, shift)));
    }
    const double step = stepOf(shift) / canvas.zoom();
    const TPoint<double> end = gradient->record.End();
    return pressAt(canvas, index,
                   {object.bounds.left + end.h * object.bounds.width() + arrow.x() * step,
                    object.bounds.top + end.v * object.bounds.height() + arrow.y() * step});
}

} // namespace

drawing::KindSet gradientKinds() {
    drawing::KindSet kinds;
    for (const drawing::Kind kind : drawing::kAllKinds)
        if (drawing::carriesGradient(kind))
            kinds.add(kind);
    return kinds;
}

std::optional<ToolKeyAnswer> answerToKey(Canvas& canvas, const QKeyEvent& event) {
    const std::vector<std::size_t> selection = canvas.drawingWindow().drawing().selection();
    if (selection.size() != 1)
        return std::nullopt;
    // With Ctrl or Alt the tool takes a click for one that opens its editor; without, a click on a shape that
    // has a gradient may move it.
    const bool edits = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
    const bool enters = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const drawing::Object& object = *canvas.drawingWindow().drawing().object(selection.front());
    if (enters && (edits || !wholeGradientOf(object)))
        return click(canvas, selection.front());
    return enters || edits ? std::nullopt : answerToArrow(canvas, selection.front(), event);
}

std::vector<ToolKeyRow> toolKeyRows() {
    return {
        {{Qt::Key_Return}, QObject::tr("Selected shape: give it the current gradient, if it has none")},
        {{Qt::CTRL | Qt::Key_Return, Qt::ALT | Qt::Key_Return},
         QObject::tr("Selected shape: edit its gradient")},
        {{Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down},
         QObject::tr(
             "Selected shape: turn a linear gradient by 1\u00b0, move the center of a radial one by a "
             "pixel (Shift: to multiples of 15\u00b0, by ten)")},
    };
}

} // namespace easel::window
