// Selecting and deleting.
#include "easel/window/canvas/SelectTool.h"

#include "easel/drawing/WholeChange.h"

#include "easel/window/canvas/Canvas.h"
#include "easel/window/look/PathConversion.h"

#include <QMouseEvent>

#include <vector>

namespace easel::window {
namespace {

// How near to an outline a click has to be, in screen pixels.
constexpr double kReach = 3;
// A shorter drag is a click with an unsteady hand.
constexpr double kShortestMarquee = 4;
// The undo kind of a deletion, which no plug-in uses.
constexpr long kDeletionUndo = 1;

bool isTooShort(const QRectF& marquee) {
    return marquee.width() < kShortestMarquee && marquee.height() < kShortestMarquee;
}

void selectWithin(drawing::Drawing& drawing, const drawing::Box& area) {
    for (std::size_t i = 0; i < drawing.size(); ++i) {
        const drawing::Box& bounds = drawing.object(i)->bounds;
        if (!bounds.empty() && area.contains({bounds.left, bounds.top}) &&
            area.contains({bounds.right, bounds.bottom}))
            drawing.select(i);
    }
}

} // namespace

void SelectTool::press(Canvas& canvas, const QMouseEvent& event) {
    drawing::Drawing& drawing = canvas.drawingWindow().drawing();
    selectedBefore_ = drawing.selection();
    const bool adds = (event.modifiers() & Qt::ShiftModifier) != 0;
    const auto hit =
        drawing.pick(canvas.toLocal(event.position()), kReach / canvas.zoom(), drawing::KindSet::all());
    if (!adds && !(hit && drawing.selected(*hit)))
        drawing.unselectAll();
    if (!hit)
        marqueeFrom_ = event.position();
    else if (adds && drawing.selected(*hit))
        drawing.unselect(*hit);
    else
        drawing.select(*hit);
    canvas.marked();
    canvas.reportChange();
}

void SelectTool::move(Canvas& canvas, const QMouseEvent& event) {
    if (marqueeFrom_)
        canvas.showMarquee(QRectF(*marqueeFrom_, event.position()).normalized());
}

void SelectTool::release(Canvas& canvas, const QMouseEvent& event) {
    if (!marqueeFrom_)
        return;
    const QRectF marquee = QRectF(*marqueeFrom_, event.position()).normalized();
    marqueeFrom_.reset();
    canvas.showMarquee({});
    if (isTooShort(marquee))
        return;
    drawing::Box area;
    area.add(canvas.toLocal(marquee.topLeft()));
    area.add(canvas.toLocal(marquee.bottomRight()));
    selectWithin(canvas.drawingWindow().drawing(), area);
    canvas.reportChange();
}

void SelectTool::breakOff(Canvas& canvas) {
    if (!marqueeFrom_)
        return;
    marqueeFrom_.reset();
    canvas.showMarquee({});
    drawing::Drawing& drawing = canvas.drawingWindow().drawing();
    drawing.unselectAll();
    for (const std::size_t index : selectedBefore_)
        drawing.select(index);
    canvas.reportChange();
}

void SelectTool::updateCursor(Canvas& canvas) {
    canvas.viewport()->setCursor(Qt::ArrowCursor);
}

void selectAll(drawing::Drawing& drawing) {
    for (std::size_t i = 0; i < drawing.size(); ++i)
        drawing.select(i);
}

void deleteSelection(drawing::Drawing& drawing) {
    const std::vector<std::size_t> selection = drawing.selection();
    if (selection.empty())
        return;
    drawing::changeWholly(drawing, [&] {
        drawing.prepareUndo(kDeletionUndo);
        for (auto index = selection.rbegin(); index != selection.rend(); ++index)
            drawing.erase(*index);
        drawing.closeUndo();
    });
}

} // namespace easel::window
