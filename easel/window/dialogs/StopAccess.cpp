// Tells and does what the keys show and do.
#include "easel/window/dialogs/StopAccess.h"

#include "easel/window/dialogs/UserItem.h"
#include "easel/window/look/ColorText.h"

#include <cmath>

namespace easel::window {
namespace {

using runtime::DialogItem;
using runtime::StopRamp;

constexpr double kWholeRamp = 100;

QString removeName() {
    return QStringLiteral("Remove");
}

QString colorName() {
    return QStringLiteral("Color");
}

} // namespace

StopAccess::StopAccess(UserItem& ramp, std::size_t stop) : ramp_(&ramp), stop_(stop) {}

std::optional<StopRamp> StopAccess::shown() const {
    auto ramp = ramp_ ? StopRamp::in(ramp_->item()) : std::nullopt;
    return ramp && stop_ < ramp->stops().size() ? ramp : std::nullopt;
}

QAccessibleInterface* StopAccess::parent() const {
    return ramp_ ? QAccessible::queryAccessibleInterface(ramp_) : nullptr;
}

QString StopAccess::text(QAccessible::Text text) const {
    const auto ramp = shown();
    if (!ramp)
        return {};
    const runtime::ShownStop& stop = ramp->stops()[stop_];
    switch (text) {
    case QAccessible::Name:
        return QObject::tr("Stop %1 of %2").arg(stop_ + 1).arg(ramp->stops().size());
    case QAccessible::Description:
        return colorText(stop.color);
    case QAccessible::Value:
        return QObject::tr("%1 %").arg(stop.position * kWholeRamp, 0, 'f', 2);
    default:
        return {};
    }
}

QRect StopAccess::rect() const {
    const auto ramp = shown();
    return ramp ? ramp_->onScreen(ramp->markOf(stop_)) : QRect();
}

QAccessible::State StopAccess::state() const {
    QAccessible::State state;
    const auto ramp = shown();
    state.invalid = !ramp;
    if (!ramp)
        return state;
    state.focusable = state.selectable = true;
    state.selected = state.active = ramp->active() == stop_;
    state.focused = ramp->active() == stop_ && ramp_->hasFocus();
    return state;
}

void* StopAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QVariant StopAccess::currentValue() const {
    const auto ramp = shown();
    return ramp ? ramp->stops()[stop_].position * kWholeRamp : 0.0;
}

QVariant StopAccess::minimumStepSize() const {
    const auto ramp = shown();
    return ramp ? kWholeRamp / std::max(1, ramp->right() - ramp->left()) : 0.0;
}

// What the stop of this number lets the mouse do by then.
template <class Gesture> void StopAccess::perform(Gesture gesture) {
    ramp_->perform([stop = stop_, gesture](const DialogItem& item) {
        const auto ramp = StopRamp::in(item);
        return ramp && stop < ramp->stops().size() ? gesture(*ramp, stop) : std::nullopt;
    });
}

void StopAccess::moveTo(int pixel, int direction) {
    perform([pixel, direction](const StopRamp& ramp, std::size_t stop) {
        return ramp.move(stop, pixel, direction);
    });
}

void StopAccess::setCurrentValue(const QVariant& value) {
    const auto ramp = shown();
    if (!ramp)
        return;
    const int to = ramp->pixelAt(value.toDouble() / kWholeRamp);
    moveTo(to, to <= ramp->left() ? 1 : -1);
}

void StopAccess::choose() {
    perform([](const StopRamp& ramp, std::size_t stop) { return ramp.choose(stop); });
}

QStringList StopAccess::actionNames() const {
    return {pressAction(), increaseAction(), decreaseAction(), colorName(), removeName()};
}

QString StopAccess::localizedActionName(const QString& name) const {
    if (name == colorName())
        return QObject::tr("Choose the color");
    return name == removeName() ? QObject::tr("Remove")
                                : QAccessibleActionInterface::localizedActionName(name);
}

void StopAccess::doAction(const QString& name) {
    const auto ramp = shown();
    if (!ramp)
        return;
    if (name == increaseAction())
        moveTo(ramp->placeOf(stop_) + 1, 1);
    else if (name == decreaseAction())
        moveTo(ramp->placeOf(stop_) - 1, -1);
    else if (name == removeName())
        perform([](const StopRamp& now, std::size_t stop) { return now.remove(stop); });
    else
        choose();
    if (name == colorName())
        ramp_->chooseColor();
}

} // namespace easel::window
