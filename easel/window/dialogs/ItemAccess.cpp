// Tells what a ramp, a preview, a swatch or a radio button shows.
#include "easel/window/dialogs/ItemAccess.h"

#include "easel/runtime/PreviewGestures.h"
#include "easel/window/dialogs/ControlItems.h"
#include "easel/window/dialogs/StopAccess.h"
#include "easel/window/dialogs/UserItem.h"
#include "easel/window/look/ColorText.h"

#include <QAccessibleWidget>

#include <cmath>
#include <vector>

namespace easel::window {
namespace {

constexpr double kPercent = 100;
constexpr double kHalfTurn = 180;

QString addName() {
    return QStringLiteral("Add");
}

class ItemAccess : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit ItemAccess(UserItem& item)
        : QAccessibleWidget(&item, QAccessible::Graphic), item_(item),
          following_(QObject::connect(&item, &UserItem::shownChanged, &item, [this] { tellChange(); })) {}
    ~ItemAccess() override {
        QObject::disconnect(following_);
        for (const QAccessible::Id id : stops_)
            QAccessible::deleteAccessibleInterface(id);
    }
    ItemAccess(const ItemAccess&) = delete;
    ItemAccess& operator=(const ItemAccess&) = delete;

    QAccessible::Role role() const override;
    QString text(QAccessible::Text text) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override { return shownAngle(item_.item()).value_or(0); }
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override { return -kHalfTurn; }
    QVariant maximumValue() const override { return kHalfTurn; }
    QVariant minimumStepSize() const override { return 1.0; }

    QStringList actionNames() const override;
    QString localizedActionName(const QString& name) const override;
    void doAction(const QString& name) override;

  private:
    // The item shows something else, or has got the keyboard.
    void tellChange();

    UserItem& item_;
    QMetaObject::Connection following_;
    mutable std::vector<QAccessible::Id> stops_;
};

QAccessible::Role ItemAccess::role() const {
    if (item_.item().divider)
        return QAccessible::Separator;
    switch (sortOf(item_.item())) {
    case ItemSort::Ramp:
        return QAccessible::Grouping;
    case ItemSort::Preview:
        return shownAngle(item_.item()) ? QAccessible::Dial : QAccessible::Graphic;
    case ItemSort::Swatch:
        return QAccessible::Button;
    case ItemSort::Plain:
        break;
    }
    return QAccessible::Graphic;
}

QString ItemAccess::text(QAccessible::Text text) const {
    const runtime::DialogItem& item = item_.item();
    if (text != QAccessible::Description)
        return QAccessibleWidget::text(text);
    if (const auto angle = shownAngle(item))
        if (sortOf(item) == ItemSort::Preview)
            return QObject::tr("Direction %1\u00b0").arg(*angle, 0, 'f', 1);
    if (const auto centre = shownCentre(item)) {
        const auto share = [](double at, int from, int length) { return (at - from) / length * kPercent; };
        return QObject::tr("Center at %1 % from the left and %2 % from the top")
            .arg(share(centre->x, item.bounds.left, item.bounds.width()), 0, 'f', 1)
            .arg(share(centre->y, item.bounds.top, item.bounds.height()), 0, 'f', 1);
    }
    return item.content.color ? colorText(*item.content.color) : QAccessibleWidget::text(text);
}

int ItemAccess::childCount() const {
    const auto ramp = runtime::StopRamp::in(item_.item());
    return ramp ? static_cast<int>(ramp->stops().size()) : 0;
}

QAccessibleInterface* ItemAccess::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    while (stops_.size() <= static_cast<std::size_t>(index))
        stops_.push_back(QAccessible::registerAccessibleInterface(new StopAccess(item_, stops_.size())));
    return QAccessible::accessibleInterface(stops_[static_cast<std::size_t>(index)]);
}

int ItemAccess::indexOfChild(const QAccessibleInterface* child) const {
    for (std::size_t i = 0; i < stops_.size(); ++i)
        if (QAccessible::accessibleInterface(stops_[i]) == child)
            return static_cast<int>(i);
    return -1;
}

QAccessibleInterface* ItemAccess::childAt(int x, int y) const {
    for (int i = 0; i < childCount(); ++i)
        if (QAccessibleInterface* const stop = child(i); stop->rect().contains(x, y))
            return stop;
    return nullptr;
}

QAccessibleInterface* ItemAccess::focusChild() const {
    const auto ramp = runtime::StopRamp::in(item_.item());
    return ramp && item_.hasFocus() ? child(static_cast<int>(ramp->active())) : nullptr;
}

void* ItemAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type != QAccessible::ValueInterface)
        return QAccessibleWidget::interface_cast(type);
    return role() == QAccessible::Dial ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
}

void ItemAccess::setCurrentValue(const QVariant& value) {
    item_.perform([degrees = value.toDouble()](const runtime::DialogItem& item) {
        return shownAngle(item) ? std::optional(turnTo(item, degrees)) : std::nullopt;
    });
}

QStringList ItemAccess::actionNames() const {
    switch (sortOf(item_.item())) {
    case ItemSort::Ramp:
        return {addName(), setFocusAction()};
    case ItemSort::Swatch:
        return {pressAction(), setFocusAction()};
    case ItemSort::Preview:
        return {setFocusAction()};
    case ItemSort::Plain:
        break;
    }
    return {};
}

QString ItemAccess::localizedActionName(const QString& name) const {
    return name == addName() ? QObject::tr("Add a stop") : QAccessibleWidget::localizedActionName(name);
}

void ItemAccess::doAction(const QString& name) {
    if (name == pressAction())
        item_.chooseColor();
    else if (name == addName())
        item_.perform([](const runtime::DialogItem& item) {
            const auto ramp = runtime::StopRamp::in(item);
            return ramp ? ramp->add() : std::nullopt;
        });
    else
        QAccessibleWidget::doAction(name);
}

void ItemAccess::tellChange() {
    QAccessibleInterface* const stop = focusChild();
    if (stop) {
        QAccessibleEvent focused(stop, QAccessible::Focus);
        QAccessible::updateAccessibility(&focused);
    }
    QAccessibleInterface* const valued = stop ? stop : this;
    if (QAccessibleValueInterface* const value = valued->valueInterface()) {
        QAccessibleValueChangeEvent changed(valued, value->currentValue());
        QAccessible::updateAccessibility(&changed);
    }
    QAccessibleEvent described(valued, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&described);
}

// Without a group that it belongs to, a radio button would be told of as a check box.
class RadioAccess : public QAccessibleWidget {
  public:
    explicit RadioAccess(RadioItem& radio)
        : QAccessibleWidget(&radio, QAccessible::RadioButton), radio_(radio) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = radio_.isChecked();
        return state;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction())
            radio_.click();
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    RadioItem& radio_;
};

QAccessibleInterface* accessTo(const QString&, QObject* object) {
    if (auto* const radio = qobject_cast<RadioItem*>(object))
        return new RadioAccess(*radio);
    auto* const item = qobject_cast<UserItem*>(object);
    return item ? new ItemAccess(*item) : nullptr;
}

} // namespace

void installItemAccess() {
    QAccessible::installFactory(accessTo);
}

} // namespace easel::window
