// Keeps what of a drawing's window has to be painted anew.
#include "easel/interface/DrawingWindow.h"

#include "easel/interface/CurrentPort.h"
#include "easel/interface/Host.h"
#include "easel/interface/User.h"
#include "easel/paint/Port.h"
#include "easel/paint/Surface.h"

#include <utility>

namespace easel::host {

namespace {

constexpr std::uint32_t kWhite = 0xffffffff;

// Many small marks are painted one by one; more of them than this are painted as one area.
constexpr std::size_t kMostMarks = 16;

View wholeDrawing(const drawing::Drawing& drawing) {
    return {
        .zoom = 1, .deviceScale = 1, .origin = {0, 0}, .width = drawing.width(), .height = drawing.height()};
}

drawing::Box seenThrough(const View& view) {
    const drawing::Point end = view.toDrawing({view.width, view.height});
    return {view.origin.x, view.origin.y, end.x, end.y};
}

} // namespace

DrawingWindow::DrawingWindow(drawing::Drawing drawing)
    : port_(std::make_unique<paint::Port>(paint::PixelRect{0, 0, 1, 1}, 1.0, kWhite & 0xffffff)),
      drawing_(std::move(drawing)), view_(wholeDrawing(drawing_)) {
    registerPort(*port_);
    mark(seenThrough(view_));
    drawing_.setChangeListener([this](const drawing::Box& area) {
        mark(area);
        if (User* user = theHost().user)
            user->repaint(*this, area);
    });
}

DrawingWindow::~DrawingWindow() {
    forgetPort(*port_);
    if (theHost().activeWindow == this)
        theHost().activeWindow = nullptr;
}

void DrawingWindow::setView(const View& view) {
    view_ = view;
    marks_.clear();
    mark(seenThrough(view_));
}

void DrawingWindow::mark(const drawing::Box& area) {
    const drawing::Box seen = area.intersection(seenThrough(view_));
    if (seen.empty())
        return;
    marks_.push_back(seen);
    if (marks_.size() <= kMostMarks)
        return;
    drawing::Box all;
    for (const drawing::Box& one : marks_)
        all.add(one);
    marks_.assign(1, all);
}

} // namespace easel::host
