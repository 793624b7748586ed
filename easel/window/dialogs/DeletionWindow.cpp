// The list, its hint and its two buttons.
#include "easel/window/dialogs/DeletionWindow.h"

#include "easel/runtime/DeletionList.h"
#include "easel/window/waiting/Interaction.h"

#include <QAbstractListModel>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

namespace easel::window {
namespace {

// Of thousands of rows only those that come into sight are asked for their text.
class RowsModel : public QAbstractListModel {
  public:
    RowsModel(runtime::DeletionList& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}
    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : list_.count(); }
    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole ? QString::fromStdString(list_.text(index.row())) : QVariant();
    }

  private:
    runtime::DeletionList& list_;
};

} // namespace

DeletionWindow::DeletionWindow(runtime::DeletionList& list, QWidget* parent)
    : QDialog(parent), list_(list), view_(new QListView) {
    const QString title = QString::fromStdString(list.title());
    setWindowTitle(title);
    auto* heading = new QLabel(title);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setTextFormat(Qt::PlainText);
    heading->setBuddy(view_);

    view_->setModel(new RowsModel(list, this));
    const bool several = list.mode() == runtime::SelectionMode::Several;
    view_->setSelectionMode(several ? QAbstractItemView::ExtendedSelection
                                    : QAbstractItemView::SingleSelection);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setUniformItemSizes(true);
    view_->setAlternatingRowColors(true);
    view_->setAccessibleName(title);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DeletionWindow::selectionChanged);

    auto* hint = new QLabel(tr("Choose several with Shift or Ctrl. What is deleted goes to the trash."));
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setWordWrap(true);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    deleteButton_ = buttons->addButton(tr("Delete"), QDialogButtonBox::AcceptRole);
    // While nothing is selected Delete is disabled, and Return must not turn to Cancel instead.
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &DeletionWindow::confirm);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->setSpacing(12);
    layout->addWidget(heading);
    layout->addWidget(view_, 1);
    layout->addWidget(hint);
    layout->addWidget(buttons);
    resize(360, 380);
    view_->setFocus();
    selectionChanged();
}

void DeletionWindow::selectionChanged() {
    std::vector<int> rows;
    for (const QModelIndex& index : view_->selectionModel()->selectedIndexes())
        rows.push_back(index.row());
    list_.select(std::move(rows));
    deleteButton_->setEnabled(list_.canConfirm());
    deleteButton_->setDefault(list_.canConfirm());
}

// The list stays in sight while the question is put, so that the user sees what is about to go.
void DeletionWindow::confirm() {
    list_.command(runtime::DeletionCommand::Ok);
    if (!list_.isOpen())
        accept();
}

void runDeletionWindow(runtime::DeletionList& list, Interaction& interaction) {
    DeletionWindow dialog(list, interaction.dialogs.parentForNext());
    if (!interaction.dialogs.run(dialog) && list.isOpen() && !interaction.waiting.cancelled())
        list.command(runtime::DeletionCommand::Cancel);
    if (list.isOpen())
        list.close();
}

} // namespace easel::window
