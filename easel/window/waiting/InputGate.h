// Decides who hears the keyboard and the mouse while the plug-in waits for an answer.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <list>

namespace easel::window {

// Dialogs could be made modal by the window system, but that would also keep the user from closing a window
// or quitting while one is open. So they are not, and this filter turns away everything but the closing.
class InputGate : public QObject {
    Q_OBJECT

  public:
    enum class Hears { Everything, Keys };

  private:
    struct Admitted {
        QPointer<QWidget> widget;
        Hears hears;
    };

  public:
    // Hears all events of the application from here on.
    InputGate();

    // While it lives, and no later one does, only this widget and what it contains or opens hears the user.
    class Scope {
      public:
        Scope(InputGate& gate, QWidget* only, Hears hears = Hears::Everything);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

      private:
        InputGate& gate_;
        std::list<Admitted>::iterator place_;
    };

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    bool admits(const QWidget& widget) const;

    std::list<Admitted> admitted_; // the one that counts last
};

} // namespace easel::window
