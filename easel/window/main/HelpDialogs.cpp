// Builds the list of shortcuts from the actions themselves, so that it cannot fall behind.
#include "easel/window/main/HelpDialogs.h"

#include "easel/window/canvas/ToolKeys.h"
#include "easel/window/dialogs/ItemKeys.h"
#include "easel/window/waiting/DialogStack.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <set>

namespace easel::window {
namespace {

QString withoutMnemonic(QString text) {
    return text.remove(QLatin1Char('&'));
}

constexpr QSize kShortcutsSize{560, 620};
constexpr int kBesidesTexts = 96; // indentation, scroll bar and margins

using Listed = std::set<const QAction*>;

QTreeWidgetItem* addGroup(QTreeWidget& list, const QString& title) {
    auto* group = new QTreeWidgetItem(&list, {title});
    group->setFirstColumnSpanned(true);
    return group;
}

void addAction(QTreeWidgetItem& group, const QAction& action) {
    QStringList keys;
    for (const QKeySequence& key : action.shortcuts())
        keys << key.toString(QKeySequence::NativeText);
    new QTreeWidgetItem(&group, {withoutMnemonic(action.text()), keys.join(QObject::tr(" or "))});
}

void addMenu(QTreeWidget& list, const QMenu& menu, Listed& listed) {
    QTreeWidgetItem* group = addGroup(list, withoutMnemonic(menu.title()));
    for (const QAction* action : menu.actions())
        if (action->menu() && !action->menu()->isEmpty())
            addMenu(list, *action->menu(), listed);
        else if (!action->shortcut().isEmpty() && listed.insert(action).second)
            addAction(*group, *action);
    if (group->childCount() == 0)
        delete group;
}

// What has keys and is in no menu is in the palette of tools.
void addOthers(QTreeWidget& list, const QMainWindow& window, Listed& listed) {
    QTreeWidgetItem* group = nullptr;
    for (const QAction* action : window.findChildren<QAction*>())
        if (!action->shortcut().isEmpty() && listed.insert(action).second) {
            if (!group)
                group = addGroup(list, QObject::tr("Tools"));
            addAction(*group, *action);
        }
}

struct Gesture {
    QString what;
    QString how;
};

void addGestures(QTreeWidget& list, const QString& title, std::initializer_list<Gesture> gestures) {
    QTreeWidgetItem* group = addGroup(list, title);
    for (const Gesture& gesture : gestures)
        new QTreeWidgetItem(group, {gesture.what, gesture.how});
}

void addMouse(QTreeWidget& list) {
    addGestures(list, QObject::tr("Gradient Tool"),
                {{QObject::tr("Give a shape the current gradient"), QObject::tr("Click")},
                 {QObject::tr("Turn a linear gradient"), QObject::tr("Drag (Shift: in steps of 15\u00b0)")},
                 {QObject::tr("Move the center of a radial gradient"), QObject::tr("Press")},
                 {QObject::tr("Edit the gradient of a shape"), QObject::tr("Alt-click or Ctrl-click")},
                 {QObject::tr("Edit the current gradient"), QObject::tr("Double-click the tool")},
                 {QObject::tr("Break off a drag"), QObject::tr("Escape")}});
    addGestures(list, QObject::tr("Select Tool"),
                {{QObject::tr("Select a shape"), QObject::tr("Click")},
                 {QObject::tr("Select one more, or one less"), QObject::tr("Shift-click")},
                 {QObject::tr("Select several"), QObject::tr("Drag (Shift: in addition)")}});
    addGestures(list, QObject::tr("Any Tool"),
                {{QObject::tr("Copy the gradient of a shape"), QObject::tr("Alt-Shift-click")},
                 {QObject::tr("Zoom about the pointer"), QObject::tr("Ctrl and wheel")},
                 {QObject::tr("Move the view"), QObject::tr("Wheel, middle button, or Space and drag")},
                 {QObject::tr("Open drawings"), QObject::tr("Drop files on a window")}});
}

void addEditor(QTreeWidget& list) {
    addGestures(
        list, QObject::tr("Gradient Editor"),
        {{QObject::tr("Choose a color stop"), QObject::tr("Click its marker")},
         {QObject::tr("Add a color stop"), QObject::tr("Click the ramp elsewhere")},
         {QObject::tr("Move a color stop"), QObject::tr("Drag its marker, or type its position")},
         {QObject::tr("Remove a color stop"), QObject::tr("Pull its marker down, or clear its position")},
         {QObject::tr("Change the color of a stop"), QObject::tr("Click the color below the ramp")},
         {QObject::tr("Set the direction"), QObject::tr("Drag in the preview (Shift: in steps of 15\u00b0)")},
         {QObject::tr("Set the center"), QObject::tr("Press in the preview")},
         {QObject::tr("Find a template"), QObject::tr("Open the popup and type its name")},
         {QObject::tr("Take back what is being dragged"), QObject::tr("Escape")},
         {QObject::tr("Accept, or leave all as it was"), QObject::tr("Return, Escape")}});
}

template <class Keys> QString keysText(const Keys& keys) {
    QStringList names;
    for (const auto& key : keys)
        names << QKeySequence(key).toString(QKeySequence::NativeText);
    return names.join(QObject::tr(" or "));
}

void addToolKeys(QTreeWidget& list) {
    QTreeWidgetItem* group = addGroup(list, QObject::tr("Keys in the Drawing"));
    const QString tab = keysText(std::array{QKeyCombination(Qt::Key_Tab), Qt::SHIFT | Qt::Key_Tab});
    new QTreeWidgetItem(group, {QObject::tr("Select the next shape, or the one before"), tab});
    for (const ToolKeyRow& row : toolKeyRows())
        new QTreeWidgetItem(group, {row.text, keysText(row.keys)});
}

void addItemKeys(QTreeWidget& list) {
    QTreeWidgetItem* group = addGroup(list, QObject::tr("Keys in the Gradient Editor"));
    for (const ItemKeyRow& row : itemKeyRows())
        new QTreeWidgetItem(group, {row.text, keysText(row.keys)});
}

} // namespace

void showShortcuts(const QMainWindow& window, DialogStack& dialogs) {
    QDialog dialog(dialogs.parentForNext());
    dialog.setWindowTitle(QObject::tr("Shortcuts"));
    auto* list = new QTreeWidget;
    list->setColumnCount(2);
    list->setHeaderHidden(true);
    list->setRootIsDecorated(false);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setAccessibleName(QObject::tr("Shortcuts"));
    addMouse(*list);
    addEditor(*list);
    addToolKeys(*list);
    addItemKeys(*list);
    Listed listed;
    for (const QAction* action : window.menuBar()->actions())
        addMenu(*list, *action->menu(), listed);
    addOthers(*list, window, listed);
    list->expandAll();
    list->setItemsExpandable(false);
    for (const int column : {0, 1})
        list->resizeColumnToContents(column);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(list);
    layout->addWidget(buttons);
    const int texts = list->columnWidth(0) + list->columnWidth(1);
    dialog.resize(std::max(kShortcutsSize.width(), texts + kBesidesTexts), kShortcutsSize.height());
    dialogs.run(dialog);
}

void showAbout(const std::string& version, DialogStack& dialogs) {
    QMessageBox box(dialogs.parentForNext());
    box.setWindowTitle(QObject::tr("About Easel"));
    box.setIconPixmap(QApplication::windowIcon().pixmap(64));
    box.setTextFormat(Qt::PlainText);
    box.setText(QObject::tr("Easel %1").arg(QString::fromStdString(version)));
    box.setInformativeText(
        QObject::tr("Draws with gradients on SVG files.\n\nThe gradient tool is a plug-in; Easel "
                    "is the host that it runs in."));
    box.setStandardButtons(QMessageBox::Close);
    dialogs.run(box);
}

} // namespace easel::window
