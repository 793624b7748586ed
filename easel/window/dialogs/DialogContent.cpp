// Paints the dialog's image and passes the mouse on.
#include "easel/window/dialogs/DialogContent.h"

#include "easel/paint/Port.h"
#include "easel/runtime/DialogDrag.h"
#include "easel/window/waiting/PointerTracker.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <deque>
#include <utility>

namespace easel::window {
namespace {

// Black with a white rim where pixels are inverted, so that a line is seen over any color; null for none.
QImage marksOver(const paint::Port& port) {
    const std::vector<bool>& inverted = port.inverted();
    const int width = port.imageWidth();
    const int height = port.imageHeight();
    const int rim = static_cast<int>(std::ceil(port.scale()));
    QImage marks;
    for (auto at = std::find(inverted.begin(), inverted.end(), true); at != inverted.end();
         at = std::find(at + 1, inverted.end(), true)) {
        if (marks.isNull()) {
            marks = QImage(width, height, QImage::Format_ARGB32);
            marks.fill(Qt::transparent);
            marks.setDevicePixelRatio(port.scale());
        }
        const auto index = static_cast<int>(at - inverted.begin());
        const int x = index % width;
        const int y = index / width;
        for (int row = std::max(y - rim, 0); row <= std::min(y + rim, height - 1); ++row)
            for (int column = std::max(x - rim, 0); column <= std::min(x + rim, width - 1); ++column) {
                const auto pixel = static_cast<std::size_t>(row) * static_cast<std::size_t>(width) +
                                   static_cast<std::size_t>(column);
                marks.setPixelColor(column, row, inverted[pixel] ? Qt::black : Qt::white);
            }
    }
    return marks;
}

} // namespace

DialogContent::DialogContent(runtime::Dialog& dialog, PointerTracker& pointer, QWidget* parent)
    : QWidget(parent), dialog_(dialog), pointer_(pointer) {
    setFixedSize(dialog.width(), dialog.height());
    setAttribute(Qt::WA_OpaquePaintEvent);
    // Items have fixed places, so what is in them is not to change sides.
    setLayoutDirection(Qt::LeftToRight);
}

DialogContent::~DialogContent() {
    pointer_.forget(*this);
}

drawing::Point DialogContent::toLocal(QPointF position) const {
    return {std::floor(position.x()), std::floor(position.y())};
}

void DialogContent::press(int item, QPointF position) {
    pressed_ = position;
    pointer_.pressed(*this, position);
    if (runtime::DialogDrag* const drag = runtime::dialogDrag())
        drag->begin();
    dialog_.hit(item);
}

void DialogContent::whenReady(std::function<void()> action) {
    due_.push_back(std::move(action));
    actIfReady();
}

void DialogContent::setReady(bool ready) {
    ready_ = ready;
    if (!ready)
        return;
    dialog_.holdFocus(false);
    actIfReady();
}

void DialogContent::actIfReady() {
    while (ready_ && !dialog_.hasHit() && !due_.empty()) {
        const std::function<void()> action = std::move(due_.front());
        due_.pop_front();
        action();
    }
}

void DialogContent::perform(int item, const runtime::MouseGesture& gesture) {
    const auto place = [](const paint::PixelPoint& point) { return QPointF(point.h, point.v); };
    std::deque<QPointF> way;
    for (const paint::PixelPoint& point : gesture.way)
        way.push_back(place(point));
    dialog_.holdFocus(true);
    press(item, place(gesture.press));
    pointer_.lead(std::move(way));
}

bool DialogContent::takeBackDrag() {
    runtime::DialogDrag* const drag = runtime::dialogDrag();
    if (!drag || !pointer_.followedOn(*this))
        return false;
    std::deque<QPointF> way;
    for (const paint::PixelPoint& step : drag->takeBack())
        way.push_back(pressed_ + QPointF(step.h, step.v));
    pointer_.lead(std::move(way));
    return true;
}

void DialogContent::move(QPointF position) {
    pointer_.moved(position);
}

void DialogContent::release(QPointF position) {
    pointer_.released(position);
}

void DialogContent::paintEvent(QPaintEvent* event) {
    const paint::Port& port = dialog_.port();
    QImage image(reinterpret_cast<const uchar*>(port.pixels()), port.imageWidth(), port.imageHeight(),
                 qsizetype{4} * port.imageWidth(), QImage::Format_RGB32);
    image.setDevicePixelRatio(port.scale());
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.fillRect(rect(), palette().window());
    painter.drawImage(QPointF(0, 0), image);
    if (const QImage marks = marksOver(port); !marks.isNull())
        painter.drawImage(QPointF(0, 0), marks);
}

} // namespace easel::window
