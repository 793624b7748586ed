// Shows a list from which any number of rows can be chosen for deletion.
#pragma once

#include <QDialog>

class QListView;
class QPushButton;

namespace easel::runtime {
class DeletionList;
}

namespace easel::window {

// Accepted means that the rows selected in the list are to be deleted. The list has to outlive the dialog.
class DeletionDialog : public QDialog {
    Q_OBJECT

  public:
    DeletionDialog(runtime::DeletionList& list, QWidget* parent);

  private:
    void selectionChanged();

    runtime::DeletionList& list_;
    QListView* view_;
    QPushButton* deleteButton_;
};

} // namespace easel::window
