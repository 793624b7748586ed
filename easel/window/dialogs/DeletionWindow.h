// The list from which rows are chosen for deletion, as a dialog.
#pragma once

#include <QDialog>

class QListView;
class QPushButton;

namespace easel::runtime {
class DeletionList;
}

namespace easel::window {

struct Interaction;

// Accepted means that the rows selected in the list are to be deleted. The list has to outlive the dialog.
class DeletionWindow : public QDialog {
    Q_OBJECT

  public:
    DeletionWindow(runtime::DeletionList& list, QWidget* parent);

  private:
    void confirm();
    void selectionChanged();

    runtime::DeletionList& list_;
    QListView* view_;
    QPushButton* deleteButton_;
};

// Shows the list until it is closed, which cancelling all waiting does too.
void runDeletionWindow(runtime::DeletionList& list, Interaction& interaction);

} // namespace easel::window
