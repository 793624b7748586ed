// The edit field of a dialog.
#pragma once

#include "easel/window/dialogs/ItemWidget.h"

#include <QLineEdit>

namespace easel::window {

// A line editor that changes only what the model accepts: text that the host's encoding lacks is turned back
// with a beep and a word of explanation.
class EditItem : public QLineEdit, public ItemWidget {
    Q_OBJECT

  public:
    EditItem(runtime::Dialog& dialog, int item, QWidget* parent);
    QWidget* widget() override { return this; }
    void modelChanged(runtime::ItemChange change) override;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    // The model's text, with a number in the user's way of writing.
    QString shownText() const;
    void edited(const QString& text);
    void refuse(const QString& attempted);
    void selectionMoved();

    runtime::Dialog& dialog_;
    int item_;
    bool entered_ = false;   // with the mouse, whose button is still down
    bool following_ = false; // taking over from the model, so nothing is to be told to it
};

} // namespace easel::window
