// A real dialog of the desktop, built from the host's model of one.
#pragma once

#include "easel/runtime/Dialog.h"
#include "easel/window/dialogs/ControlItems.h"

#include <QDialog>

#include <map>

namespace easel::window {

class DialogContent;
class ItemWidget;
class PointerTracker;

// Shows the model and keeps showing it: native controls over the dialog's own image. What the user does goes
// to the model, which turns it into hits.
class DialogWindow : public QDialog, private runtime::DialogObserver {
    Q_OBJECT

  public:
    // The model and the tracker outlive the window.
    DialogWindow(runtime::Dialog& dialog, PointerTracker& pointer, const EntryPicture& picture,
                 QWidget* parent);
    ~DialogWindow() override;

    void reject() override;

    // What the program that runs the dialog does: it waits for a hit, or acts on one.
    enum class Program { Waiting, Busy };
    void programIs(Program program);

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void itemChanged(int item, runtime::ItemChange change) override;
    void focusChanged() override;
    void shownChanged() override {}
    void pixelsDrawn(const paint::PixelRect& area) override;

    void addItem(const runtime::DialogItem& item, const EntryPicture& picture);
    void putButtonsInOrder();
    void orderForTab();
    void followFocus(const QWidget* now);
    // Makes the image anew for the screen as it is now, as soon as the program is not drawing in it.
    void matchScreen();

    runtime::Dialog& dialog_;
    DialogContent* content_;
    std::map<int, ItemWidget*> items_;
    Program program_ = Program::Waiting;
    bool unmatched_ = false;
};

} // namespace easel::window
