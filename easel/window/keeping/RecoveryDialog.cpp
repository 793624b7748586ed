// Lists the drawings, each with its picture, its name and folder, and the time when it was kept.
#include "easel/window/keeping/RecoveryDialog.h"

#include "easel/svg/Document.h"
#include "easel/window/keeping/Thumbnail.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace easel::window {
namespace {

constexpr QSize kPicture{112, 84};

QString describe(const recovery::Journal& journal) {
    const QFileInfo origin(QFile::decodeName(journal.origin().c_str()));
    const QDateTime time = QFileInfo(QFile::decodeName(journal.drawing().c_str())).lastModified();
    QStringList lines;
    if (journal.origin().empty())
        lines << QObject::tr("Untitled");
    else
        lines << origin.fileName() << origin.path();
    lines << QObject::tr("Kept %1").arg(QLocale().toString(time, QLocale::ShortFormat));
    return lines.join(QLatin1Char('\n'));
}

// Null where it cannot be read.
QPixmap pictureOf(const recovery::Journal& journal, double ratio) {
    const auto drawing = svg::readFile(journal.drawing());
    return drawing ? thumbnail(*drawing, kPicture, ratio) : QPixmap();
}

} // namespace

RecoveryDialog::RecoveryDialog(const std::vector<recovery::Journal>& journals, QWidget* parent)
    : QDialog(parent), journals_(journals), list_(new QListWidget) {
    setWindowTitle(tr("Unsaved Drawings"));
    auto* text = new QLabel(tr("Easel ended before these drawings were saved. What is opened keeps the name "
                               "of its file, which stays as it is until you save."));
    text->setWordWrap(true);
    text->setBuddy(list_);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setIconSize(kPicture);
    list_->setAccessibleName(windowTitle());
    QPixmap empty(kPicture);
    empty.fill(Qt::transparent);
    for (const recovery::Journal& journal : journals)
        list_->addItem(new QListWidgetItem(empty, describe(journal)));
    list_->selectAll();
    list_->setCurrentRow(0, QItemSelectionModel::NoUpdate);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->setSpacing(12);
    layout->addWidget(text);
    layout->addWidget(list_, 1);
    auto* buttons = new QDialogButtonBox;
    layout->addWidget(buttons);
    addButtons(*buttons);
    resize(520, 400);
    list_->setFocus();
    // Pictures of large drawings take their time; the rest of the dialog is there before.
    QTimer::singleShot(0, this, &RecoveryDialog::drawNextPicture);
}

void RecoveryDialog::addButtons(QDialogButtonBox& buttons) {
    const auto add = [&](const QString& text, QDialogButtonBox::ButtonRole role, Choice choice) {
        QPushButton* button = buttons.addButton(text, role);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, choice] { close(choice); });
        return button;
    };
    // The role of a button that desktops put away from the others.
    auto* throwAway = add(tr("&Throw Away"), QDialogButtonBox::ResetRole, Choice::ThrowAway);
    throwAway->setToolTip(tr("Move to the trash"));
    add(tr("&Later"), QDialogButtonBox::RejectRole, Choice::Later)
        ->setToolTip(tr("Ask again at the next start"));
    auto* saveAs = add(tr("Save &As\u2026"), QDialogButtonBox::ActionRole, Choice::SaveAs);
    auto* open = add(tr("&Open"), QDialogButtonBox::AcceptRole, Choice::Open);
    open->setDefault(true);
    connect(list_, &QListWidget::itemSelectionChanged, this, [this, throwAway, saveAs, open] {
        const auto count = list_->selectedItems().size();
        saveAs->setEnabled(count == 1);
        throwAway->setEnabled(count > 0);
        open->setEnabled(count > 0);
    });
    saveAs->setEnabled(journals_.size() == 1);
    connect(list_, &QListWidget::itemActivated, this, [this] { close(Choice::Open); });
}

void RecoveryDialog::close(Choice choice) {
    choice_ = choice;
    done(choice == Choice::Later ? Rejected : Accepted);
}

std::vector<std::size_t> RecoveryDialog::chosen() const {
    std::vector<std::size_t> rows;
    for (int row = 0; row < list_->count(); ++row)
        if (list_->item(row)->isSelected())
            rows.push_back(static_cast<std::size_t>(row));
    return rows;
}

void RecoveryDialog::drawNextPicture() {
    if (pictures_ == list_->count())
        return;
    const QPixmap picture = pictureOf(journals_[static_cast<std::size_t>(pictures_)], devicePixelRatioF());
    QIcon icon(picture);
    // The selection is not to tint it.
    icon.addPixmap(picture, QIcon::Selected);
    list_->item(pictures_)->setIcon(icon);
    ++pictures_;
    QTimer::singleShot(0, this, &RecoveryDialog::drawNextPicture);
}

} // namespace easel::window
