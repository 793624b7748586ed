// The native controls that need no drawing of ours.
#include "easel/window/dialogs/ControlItems.h"

#include "easel/window/dialogs/EntryDelegate.h"

#include <QKeyEvent>
#include <QListView>
#include <QWheelEvent>

namespace easel::window {
namespace {

// Buttons would take '&' for the mark of an accelerator.
QString caption(const runtime::DialogItem& item) {
    return QString::fromStdString(item.shownText()).replace(QLatin1Char('&'), QLatin1String("&&"));
}

Qt::Alignment alignmentOf(const runtime::DialogItem& item) {
    switch (item.alignment) {
    case runtime::TextAlignment::Center:
        return Qt::AlignHCenter;
    case runtime::TextAlignment::Right:
        return Qt::AlignRight;
    case runtime::TextAlignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

constexpr int kEntriesInSight = 24;
// Of a list whose entries are names of files, in characters.
constexpr int kListWidth = 32;

} // namespace

ButtonItem::ButtonItem(runtime::Dialog& dialog, int item, QWidget* parent)
    : QPushButton(parent), dialog_(dialog), item_(item) {
    setFocusPolicy(Qt::TabFocus);
    setAutoDefault(false);
    setDefault(item == kDefaultItem);
    connect(this, &QPushButton::clicked, this, [this] { dialog_.hit(item_); });
    modelChanged(runtime::ItemChange::Text);
}

void ButtonItem::modelChanged(runtime::ItemChange) {
    const runtime::DialogItem& item = *dialog_.item(item_);
    setText(caption(item));
    setEnabled(item.enabled);
}

LabelItem::LabelItem(runtime::Dialog& dialog, int item, QWidget* parent)
    : QLabel(parent), dialog_(dialog), item_(item) {
    setTextFormat(Qt::PlainText);
    setAlignment(alignmentOf(*dialog.item(item)) | Qt::AlignVCenter);
    modelChanged(runtime::ItemChange::Text);
}

void LabelItem::modelChanged(runtime::ItemChange) {
    const runtime::DialogItem& item = *dialog_.item(item_);
    setText(QString::fromStdString(item.shownText()));
    setEnabled(item.enabled);
    setWordWrap(item.bounds.height() > 2 * fontMetrics().height());
}

RadioItem::RadioItem(runtime::Dialog& dialog, int item, QWidget* parent)
    : QRadioButton(parent), dialog_(dialog), item_(item) {
    setFocusPolicy(Qt::TabFocus);
    setAutoExclusive(false);
    connect(this, &QRadioButton::clicked, this, [this] { dialog_.hit(item_); });
    modelChanged(runtime::ItemChange::Value);
}

void RadioItem::modelChanged(runtime::ItemChange) {
    const runtime::DialogItem& item = *dialog_.item(item_);
    setText(caption(item));
    setChecked(item.value != 0);
    setEnabled(item.enabled);
}

void MenuModel::reload() {
    beginResetModel();
    pictures_.clear();
    shownCount_ = menu_.count();
    endResetModel();
}

int MenuModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shownCount_;
}

QVariant MenuModel::data(const QModelIndex& index, int role) const {
    const int number = index.row() + 1;
    if (!menu_.has(number))
        return {};
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return QString::fromStdString(menu_.text(number));
    // The word by which combo boxes know a separator.
    if (role == Qt::AccessibleDescriptionRole && menu_.entry(number).separator)
        return QStringLiteral("separator");
    if (role == Qt::DecorationRole && !menu_.entry(number).separator)
        return pictureOf(number);
    if (role == Qt::FontRole && menu_.isHeading(number)) {
        QFont font = shown_->font();
        font.setBold(true);
        return font;
    }
    return {};
}

Qt::ItemFlags MenuModel::flags(const QModelIndex& index) const {
    if (!menu_.selectable(index.row() + 1) || menu_.isHeading(index.row() + 1))
        return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

QIcon MenuModel::pictureOf(int number) const {
    if (!picture_)
        return {};
    const std::string text = menu_.text(number);
    const QString key = QString::fromStdString(text);
    const auto known = pictures_.constFind(key);
    return known != pictures_.cend() ? *known
                                     : *pictures_.insert(key, picture_(text, shown_->devicePixelRatioF()));
}

PopupItem::PopupItem(runtime::Dialog& dialog, int item, EntryPicture picture, QWidget* parent)
    : QComboBox(parent), dialog_(dialog), item_(item),
      entries_(new MenuModel(*dialog.item(item)->menu, std::move(picture), this)) {
    setFocusPolicy(Qt::TabFocus);
    auto* list = new QListView(this);
    list->setUniformItemSizes(false);
    list->setLayoutMode(QListView::Batched);
    setView(list);
    list->setItemDelegate(new EntryDelegate(list));
    list->setMinimumWidth(kListWidth * fontMetrics().averageCharWidth());
    setModel(entries_);
    setMaxVisibleItems(kEntriesInSight);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(this, &QComboBox::activated, this, [this](int row) {
        dialog_.chooseEntry(item_, row + 1);
        modelChanged(runtime::ItemChange::Value);
    });
    modelChanged(runtime::ItemChange::Value);
}

void PopupItem::modelChanged(runtime::ItemChange change) {
    if (change == runtime::ItemChange::Menu)
        entries_->reload();
    const runtime::DialogItem& item = *dialog_.item(item_);
    setCurrentIndex(item.menu->has(item.value) ? item.value - 1 : -1);
    setEnabled(item.enabled);
}

// What was typed when the list was open before is no part of a new search.
void PopupItem::showPopup() {
    view()->keyboardSearch({});
    QComboBox::showPopup();
}

void PopupItem::keyPressEvent(QKeyEvent* event) {
    const bool opens = event->key() == Qt::Key_Space || event->key() == Qt::Key_Up ||
                       event->key() == Qt::Key_Down || event->key() == Qt::Key_F4;
    const bool searches = !event->text().isEmpty() && event->text().at(0).isPrint();
    if (opens || searches) {
        showPopup();
        if (searches && !opens)
            view()->keyboardSearch(event->text());
        return;
    }
    // Home, End and the page keys would choose at once; Return and Escape belong to the dialog.
    event->ignore();
}

void PopupItem::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

} // namespace easel::window
