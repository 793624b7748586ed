// A real dialog of the desktop, built from the host's model of one.
#pragma once

#include "easel/runtime/Dialog.h"

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
    DialogWindow(runtime::Dialog& dialog, PointerTracker& pointer, QWidget* parent);
    ~DialogWindow() override;

    void reject() override;

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

    void addItem(const runtime::DialogItem& item);
    void followFocus(const QWidget* now);
    void matchScreen();

    runtime::Dialog& dialog_;
    DialogContent* content_;
    std::map<int, ItemWidget*> items_;
};

} // namespace easel::window
