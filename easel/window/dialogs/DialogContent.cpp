// Paints the dialog's image and passes the mouse on.
#include "easel/window/dialogs/DialogContent.h"

#include "easel/paint/Port.h"
#include "easel/window/waiting/PointerTracker.h"

#include <QPaintEvent>
#include <QPainter>

#include <cmath>

namespace easel::window {

DialogContent::DialogContent(runtime::Dialog& dialog, PointerTracker& pointer, QWidget* parent)
    : QWidget(parent), dialog_(dialog), pointer_(pointer) {
    setFixedSize(dialog.width(), dialog.height());
    setAttribute(Qt::WA_OpaquePaintEvent);
}

DialogContent::~DialogContent() {
    pointer_.forget(*this);
}

drawing::Point DialogContent::toLocal(QPointF position) const {
    return {std::floor(position.x()), std::floor(position.y())};
}

void DialogContent::press(int item, QPointF position) {
    pointer_.pressed(*this, position);
    dialog_.hit(item);
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
}

} // namespace easel::window
