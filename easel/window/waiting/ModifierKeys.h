// The modifier keys as they are for the event that is being handled.
#pragma once

#include <QObject>

class QInputEvent;

namespace easel::window {

class PointerTracker;

class ModifierKeys : public QObject {
    Q_OBJECT

  public:
    // Sees all events of the application from here on, before every filter that is there already. The
    // tracker hears of each change and outlives this.
    explicit ModifierKeys(PointerTracker& pointer);

    bool shiftIsDown() const { return (down_ & Qt::ShiftModifier) != 0; }
    // Alt, or Ctrl, as many window managers keep Alt and the mouse to themselves.
    bool optionIsDown() const { return (down_ & (Qt::AltModifier | Qt::ControlModifier)) != 0; }

  Q_SIGNALS:
    // Option went down or up, which may ask for another cursor.
    void optionChanged();

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    void note(const QInputEvent& event);

    PointerTracker& pointer_;
    Qt::KeyboardModifiers down_;
};

} // namespace easel::window
