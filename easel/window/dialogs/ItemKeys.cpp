// Which key stands for which gesture of the mouse.
#include "easel/window/dialogs/ItemKeys.h"

#include "easel/runtime/PreviewGestures.h"
#include "easel/runtime/StopRamp.h"
#include "easel/window/waiting/ArrowKeys.h"

#include <QObject>

#include <algorithm>
#include <cmath>

namespace easel::window {
namespace {

using runtime::DialogItem;
using runtime::MouseGesture;
using runtime::StopRamp;
using MaybeGesture = std::optional<MouseGesture>;

MaybeGesture chooseStop(const DialogItem& item, const ItemKey& pressed) {
    return StopRamp::in(item)->chooseBeside(arrowOf(pressed.key).y());
}

MaybeGesture moveBy(const DialogItem& item, int pixels) {
    const StopRamp ramp = *StopRamp::in(item);
    const int from = ramp.placeOf(ramp.active());
    return ramp.move(ramp.active(), from + pixels, pixels < 0 ? -1 : 1);
}

MaybeGesture moveStop(const DialogItem& item, const ItemKey& pressed) {
    return moveBy(item, arrowOf(pressed.key).x() * stepOf(pressed.shift));
}

MaybeGesture moveStopFar(const DialogItem& item, const ItemKey& pressed) {
    return moveBy(item, pressed.key == Qt::Key_PageDown ? -kLargeStep : kLargeStep);
}

MaybeGesture moveStopToEnd(const DialogItem& item, const ItemKey& pressed) {
    const StopRamp ramp = *StopRamp::in(item);
    const bool start = pressed.key == Qt::Key_Home;
    return ramp.move(ramp.active(), start ? ramp.left() : ramp.right(), start ? 1 : -1);
}

MaybeGesture addStop(const DialogItem& item, const ItemKey&) {
    return StopRamp::in(item)->add();
}

MaybeGesture removeStop(const DialogItem& item, const ItemKey&) {
    const StopRamp ramp = *StopRamp::in(item);
    return ramp.remove(ramp.active());
}

MaybeGesture turnOrMove(const DialogItem& item, const ItemKey& pressed) {
    const QPoint arrow = arrowOf(pressed.key);
    if (const auto angle = shownAngle(item))
        return turnTo(item, runtime::nextAngle(*angle, turnOf(arrow, pressed.shift)));
    const drawing::Point centre = *shownCentre(item);
    const QPoint by = arrow * stepOf(pressed.shift);
    return moveCentreTo(item, {static_cast<int>(std::lround(centre.x)) + by.x(),
                               static_cast<int>(std::lround(centre.y)) + by.y()});
}

MaybeGesture toTheMiddle(const DialogItem& item, const ItemKey&) {
    if (shownAngle(item))
        return turnTo(item, 0);
    return moveCentreTo(item, item.bounds.middle());
}

} // namespace

ItemSort sortOf(const runtime::DialogItem& item) {
    if (StopRamp::in(item))
        return ItemSort::Ramp;
    if (item.content.gradient)
        return ItemSort::Preview;
    return item.content.color ? ItemSort::Swatch : ItemSort::Plain;
}

std::vector<ItemKeyRow> itemKeyRows() {
    const std::vector<Qt::Key> choosing{Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};
    return {
        {ItemSort::Ramp,
         {Qt::Key_Up, Qt::Key_Down},
         QObject::tr("Ramp: the stop before or after becomes active"),
         chooseStop},
        {ItemSort::Ramp,
         {Qt::Key_Left, Qt::Key_Right},
         QObject::tr("Ramp: move the stop by a pixel (Shift: by ten)"),
         moveStop},
        {ItemSort::Ramp,
         {Qt::Key_PageDown, Qt::Key_PageUp},
         QObject::tr("Ramp: move the stop by ten pixels"),
         moveStopFar},
        {ItemSort::Ramp,
         {Qt::Key_Home, Qt::Key_End},
         QObject::tr("Ramp: move the stop to an end"),
         moveStopToEnd},
        {ItemSort::Ramp, {Qt::Key_Insert}, QObject::tr("Ramp: add a stop after the active one"), addStop},
        {ItemSort::Ramp,
         {Qt::Key_Delete, Qt::Key_Backspace},
         QObject::tr("Ramp: remove the stop"),
         removeStop},
        {ItemSort::Ramp, choosing, QObject::tr("Ramp: choose the stop's color"), nullptr},
        {ItemSort::Preview,
         {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down},
         QObject::tr("Preview: turn a linear gradient by 1\u00b0, move the center of a radial one by a pixel "
                     "(Shift: to multiples of 15\u00b0, by ten)"),
         turnOrMove},
        {ItemSort::Preview,
         {Qt::Key_Home},
         QObject::tr("Preview: direction to the right, center in the middle"),
         toTheMiddle},
        {ItemSort::Swatch, choosing, QObject::tr("Swatch: choose the stop's color"), nullptr},
    };
}

std::optional<ItemKeyRow> rowOf(ItemSort sort, const ItemKey& key) {
    for (ItemKeyRow& row : itemKeyRows())
        if (row.sort == sort && std::find(row.keys.begin(), row.keys.end(), key.key) != row.keys.end())
            return std::move(row);
    return std::nullopt;
}

} // namespace easel::window
