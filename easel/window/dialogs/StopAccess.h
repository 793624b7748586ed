// One color stop of a ramp, for assistive technology.
#pragma once

#include "easel/runtime/StopRamp.h"

#include <QAccessible>
#include <QPointer>

#include <cstddef>
#include <optional>

namespace easel::window {

class UserItem;

// A slider from 0 to 100 percent. It stands for the stop that has its number from the left; when there is
// none of that number any more, it is invalid.
class StopAccess : public QAccessibleInterface,
                   public QAccessibleValueInterface,
                   public QAccessibleActionInterface {
  public:
    StopAccess(UserItem& ramp, std::size_t stop);

    bool isValid() const override { return shown().has_value(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text text) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Slider; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return 100.0; }
    QVariant minimumStepSize() const override;

    QStringList actionNames() const override;
    QString localizedActionName(const QString& name) const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    // Nothing if there is no such stop any more.
    std::optional<runtime::StopRamp> shown() const;
    template <class Gesture> void perform(Gesture gesture);
    void choose();
    void moveTo(int pixel, int direction);

    QPointer<UserItem> ramp_;
    std::size_t stop_;
};

} // namespace easel::window
