// The person at the desktop, as the host sees it.
#pragma once

#include "easel/runtime/User.h"
#include "easel/window/waiting/InputGate.h"
#include "easel/window/waiting/PointerTracker.h"

#include <QObject>

#include <map>
#include <memory>

class QDialog;
class QInputEvent;

namespace easel::window {

class Canvas;

class DesktopUser : public QObject, public runtime::User {
    Q_OBJECT

  public:
    explicit DesktopUser(QObject* parent = nullptr);
    ~DesktopUser() override;

    PointerTracker& pointer() { return pointer_; }
    InputGate& gate() { return gate_; }

    void addCanvas(Canvas& canvas);
    void removeCanvas(Canvas& canvas);
    // The window over which dialogs open when no other dialog is open.
    void setFrontWindow(QWidget* window) { frontWindow_ = window; }

    bool optionIsDown() const { return (modifiers_ & (Qt::AltModifier | Qt::ControlModifier)) != 0; }

    // Lives while the plug-in runs a callback. Calls may nest only through the dialogs that the plug-in
    // opens.
    class Call {
      public:
        explicit Call(DesktopUser& user);
        ~Call();
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

      private:
        DesktopUser& user_;
    };
    bool busy() const { return calls_ > 0; }
    // Ends whatever the plug-in waits for, as if the user had cancelled it; `becameIdle` follows if it was
    // busy.
    void cancelAll();
    bool cancelled() const { return pointer_.givenUp(); }

    // Shows a dialog over the front one, hears no other window meanwhile, and returns whether it was
    // accepted.
    bool runDialog(QDialog& dialog);
    // What a new dialog belongs to: the front dialog, else the front window.
    QWidget* parentForDialogs() const;

    // --- runtime::User
    runtime::MouseState mouse() override { return pointer_.mouse(); }
    runtime::MouseState waitWhileDown() override { return pointer_.waitWhileDown(); }
    runtime::MouseState waitForMove(drawing::Point from) override { return pointer_.waitForMove(from); }
    bool dragBegins(drawing::Point from, double distance) override {
        return pointer_.dragBegins(from, distance);
    }
    bool keyIsDown(std::uint16_t code) override;
    void present(runtime::DrawingWindow& window) override;
    void repaint(runtime::DrawingWindow& window, const drawing::Box& area) override;
    void scrollTowardsMouse(runtime::DrawingWindow& window) override;
    void setCursor(runtime::DrawingWindow& window, long id) override;
    void setDialogCursor(long id) override;
    void beep() override;
    void tell(const std::string& message) override;
    void dialogShown(runtime::Dialog& dialog) override;
    void dialogClosed(runtime::Dialog& dialog) override;
    std::int16_t nextHit(runtime::Dialog& dialog) override;
    runtime::Answer confirm(const runtime::Alert& alert) override;
    std::optional<RGBColor> pickColor(const std::string& prompt, const RGBColor& start) override;
    void runDeletion(runtime::DeletionList& list) override;

  Q_SIGNALS:
    void becameIdle();
    // Option went down or up, which may ask for another cursor.
    void optionKeyChanged();

  protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

  private:
    struct ShownDialog;

    void noteModifiers(const QInputEvent& event);
    Canvas* canvasOf(const runtime::DrawingWindow& window) const;

    PointerTracker pointer_;
    InputGate gate_;
    std::map<const runtime::DrawingWindow*, Canvas*> canvases_;
    std::map<const runtime::Dialog*, std::unique_ptr<ShownDialog>> dialogs_;
    std::vector<QPointer<QWidget>> open_; // dialogs on the screen, the front one last
    QPointer<QWidget> frontWindow_;
    Qt::KeyboardModifiers modifiers_;
    int calls_ = 0;
};

} // namespace easel::window
