// The window's menus, tool bar and tool palette.
#include "easel/window/canvas/Canvas.h"
#include "easel/window/look/Icons.h"
#include "easel/window/look/Theme.h"
#include "easel/window/main/MainWindow.h"
#include "easel/window/main/SharedParts.h"

#include <QActionGroup>
#include <QEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace easel::window {
namespace {

constexpr QSize kBarIcon{20, 20};
constexpr QSize kPaletteIcon{28, 28};
constexpr int kPaletteWidth = 76;

// A menu shows its text as it stands.
QString verbatim(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

// The file's name, with its folder where another file of the list has the same name.
QString distinctName(const QString& file, const QStringList& among) {
    const QFileInfo info(file);
    const auto sameName = [&](const QString& other) {
        return QFileInfo(other).fileName() == info.fileName();
    };
    if (std::count_if(among.begin(), among.end(), sameName) == 1)
        return info.fileName();
    return QStringLiteral("%1 \u2014 %2").arg(info.fileName(), info.path());
}

} // namespace

QAction* MainWindow::makeAction(const QString& text, const QString& tip, const QKeySequence& keys,
                                void (MainWindow::*slot)()) {
    auto* action = new QAction(text, this);
    action->setShortcut(keys);
    action->setStatusTip(tip);
    const QString shortcut = keys.toString(QKeySequence::NativeText);
    action->setToolTip(shortcut.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, shortcut));
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void MainWindow::buildActions() {
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    buildHelpMenu();
    buildToolBar();
    buildToolPalette();
}

void MainWindow::buildFileMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    new_ = makeAction(tr("&New"), tr("New drawing"), QKeySequence::New, &MainWindow::newDrawingWanted);
    new_->setIcon(icon(IconName::New));
    open_ = makeAction(tr("&Open\u2026"), tr("Open a drawing"), QKeySequence::Open, &MainWindow::open);
    open_->setIcon(icon(IconName::Open));
    save_ = makeAction(tr("&Save"), tr("Save the drawing"), QKeySequence::Save, &MainWindow::saveNow);
    save_->setIcon(icon(IconName::Save));
    menu->addAction(new_);
    menu->addAction(open_);
    recentMenu_ = menu->addMenu(tr("Open &Recent"));
    connect(recentMenu_, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
    menu->addSeparator();
    menu->addAction(save_);
    menu->addAction(makeAction(tr("Save &As\u2026"), tr("Save the drawing under another name"),
                               QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), &MainWindow::saveAsNow));
    revert_ = makeAction(tr("Re&vert to Opened\u2026"), tr("Go back to the drawing as it was opened"), {},
                         &MainWindow::revertToOpened);
    menu->addAction(revert_);
    QMenu* exports = menu->addMenu(tr("&Export"));
    exports->addAction(makeAction(tr("As &PNG\u2026"), tr("Export a picture"), {}, &MainWindow::exportPng));
    exports->addAction(makeAction(tr("As P&DF\u2026"), tr("Export a page"), {}, &MainWindow::exportPdf));
    exports->addAction(
        makeAction(tr("As &SVG\u2026"), tr("Export a copy of the drawing"), {}, &MainWindow::exportSvg));
    menu->addSeparator();
    menu->addAction(
        makeAction(tr("&Print\u2026"), tr("Print the drawing"), QKeySequence::Print, &MainWindow::print));
    auto* reopen = new QAction(tr("Reopen &Drawings at Start"), this);
    reopen->setCheckable(true);
    reopen->setStatusTip(tr("Open the drawings of the last time again, in windows as they were"));
    connect(menu, &QMenu::aboutToShow, reopen,
            [this, reopen] { reopen->setChecked(shared_.session.isWanted()); });
    connect(reopen, &QAction::triggered, this, &MainWindow::reopenChosen);
    menu->addAction(reopen);
    menu->addSeparator();
    auto* close = new QAction(tr("&Close"), this);
    close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    connect(close, &QAction::triggered, this, &QWidget::close);
    menu->addAction(close);
    menu->addAction(makeAction(tr("&Quit"), tr("Close all drawings"), QKeySequence(Qt::CTRL | Qt::Key_Q),
                               &MainWindow::quitWanted));
}

void MainWindow::reopenChosen(bool wanted) {
    shared_.session.setWanted(wanted);
}

void MainWindow::fillRecentMenu() {
    recentMenu_->clear();
    const QStringList files = shared_.recentFiles.files();
    for (const QString& file : files) {
        QAction* action = recentMenu_->addAction(verbatim(distinctName(file, files)), this,
                                                 [this, file] { Q_EMIT filesWanted({file}); });
        action->setStatusTip(file);
    }
    if (recentMenu_->isEmpty()) {
        recentMenu_->addAction(tr("No recent drawings"))->setEnabled(false);
        return;
    }
    recentMenu_->addSeparator();
    recentMenu_->addAction(tr("Clear"), this, [this] { shared_.recentFiles.clear(); });
}

void MainWindow::buildEditMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    undo_ = makeAction(tr("&Undo"), tr("Undo the last change"), QKeySequence::Undo, &MainWindow::undo);
    undo_->setIcon(icon(IconName::Undo));
    redo_ = makeAction(tr("&Redo"), tr("Redo what was undone"),
                       QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), &MainWindow::redo);
    redo_->setIcon(icon(IconName::Redo));
    delete_ = makeAction(tr("&Delete"), tr("Delete what is selected"), QKeySequence::Delete,
                         &MainWindow::deleteSelected);
    menu->addActions({undo_, redo_});
    menu->addSeparator();
    menu->addAction(delete_);
    menu->addAction(makeAction(tr("Select &All"), tr("Select every object"), QKeySequence::SelectAll,
                               &MainWindow::selectAllObjects));
    menu->addSeparator();
    options_ = makeAction(tr("&Gradient Options\u2026"), tr("Edit the current gradient"),
                          QKeySequence(Qt::CTRL | Qt::Key_G), &MainWindow::openOptions);
    options_->setIcon(icon(IconName::Options));
    options_->setEnabled(shared_.tools.tools().size() > 1);
    menu->addAction(options_);
    buildGradientMenu(*menu);
}

void MainWindow::buildViewMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    zoomIn_ =
        makeAction(tr("Zoom &In"), tr("Zoom in"), QKeySequence(Qt::CTRL | Qt::Key_Plus), &MainWindow::zoomIn);
    zoomIn_->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    zoomIn_->setIcon(icon(IconName::ZoomIn));
    zoomOut_ = makeAction(tr("Zoom &Out"), tr("Zoom out"), QKeySequence(Qt::CTRL | Qt::Key_Minus),
                          &MainWindow::zoomOut);
    zoomOut_->setIcon(icon(IconName::ZoomOut));
    zoomActual_ = makeAction(tr("&100 %"), tr("One drawing unit per pixel"),
                             QKeySequence(Qt::CTRL | Qt::Key_1), &MainWindow::zoomActual);
    zoomActual_->setIcon(icon(IconName::ActualSize));
    zoomFit_ = makeAction(tr("&Fit"), tr("Show the whole drawing"), QKeySequence(Qt::CTRL | Qt::Key_0),
                          &MainWindow::zoomFit);
    zoomFit_->setIcon(icon(IconName::Fit));
    menu->addActions({zoomIn_, zoomOut_, zoomActual_, zoomFit_});
    menu->addSeparator();
    snapGrid_ = makeAction(tr("Snap to &Grid"), tr("Snap to the grid"),
                           QKeySequence(Qt::CTRL | Qt::Key_Apostrophe), &MainWindow::snapChanged);
    snapGrid_->setIcon(icon(IconName::Grid));
    snapObject_ =
        makeAction(tr("Snap to &Objects"), tr("Snap to corners and ends"),
                   QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Apostrophe), &MainWindow::snapChanged);
    snapObject_->setIcon(icon(IconName::Magnet));
    for (QAction* action : {snapGrid_, snapObject_})
        action->setCheckable(true);
    showSnap();
    menu->addActions({snapGrid_, snapObject_});
    menu->addSeparator();
    QMenu* looks = menu->addMenu(tr("&Appearance"));
    auto* group = new QActionGroup(looks);
    const auto addLook = [&](const QString& text, Appearance appearance) {
        QAction* action = looks->addAction(text);
        action->setCheckable(true);
        action->setChecked(appearance == storedAppearance());
        action->setData(static_cast<int>(appearance));
        group->addAction(action);
    };
    addLook(tr("As the &Desktop"), Appearance::AsDesktop);
    addLook(tr("&Light"), Appearance::Light);
    addLook(tr("&Dark"), Appearance::Dark);
    addLook(tr("High &Contrast"), Appearance::HighContrast);
    connect(group, &QActionGroup::triggered, this, &MainWindow::chooseAppearance);
}

void MainWindow::buildHelpMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Help"));
    menu->addAction(makeAction(tr("&Shortcuts"), tr("What keys and mouse do"), QKeySequence(Qt::Key_F1),
                               &MainWindow::showShortcuts));
    menu->addAction(makeAction(tr("&About Easel"), tr("About this program"), {}, &MainWindow::showAbout));
}

void MainWindow::buildToolBar() {
    QToolBar* bar = addToolBar(tr("Main Tool Bar"));
    bar->setMovable(false);
    bar->setIconSize(kBarIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addActions({new_, open_, save_});
    bar->addSeparator();
    bar->addActions({undo_, redo_});
    bar->addSeparator();
    bar->addActions({zoomOut_, zoomIn_, zoomActual_, zoomFit_});
    bar->addSeparator();
    bar->addActions({snapGrid_, snapObject_});
    bar->addSeparator();
    bar->addAction(options_);
}

void MainWindow::buildToolPalette() {
    auto* bar = new QToolBar(tr("Tools"));
    addToolBar(Qt::LeftToolBarArea, bar);
    bar->setMovable(false);
    bar->setIconSize(kPaletteIcon);
    bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    toolActions_ = new QActionGroup(this);
    const std::vector<PaletteTool>& tools = shared_.tools.tools();
    for (std::size_t i = 0; i < tools.size(); ++i) {
        auto* action = new QAction(tools[i].icon, verbatim(tools[i].name), toolActions_);
        action->setCheckable(true);
        action->setData(static_cast<qulonglong>(i));
        action->setShortcut(i == 0 ? QKeySequence(Qt::Key_V)
                                   : QKeySequence(Qt::Key_G + static_cast<int>(i) - 1));
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(tools[i].plugin
                               ? tr("%1 (%2); double-click for its options").arg(tools[i].name, keys)
                               : tr("%1 (%2)").arg(tools[i].name, keys));
        connect(action, &QAction::triggered, this, [this, i] { shared_.tools.activate(i); });
        bar->addAction(action);
        auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
        button->setMinimumWidth(kPaletteWidth);
        button->setAccessibleName(tools[i].name);
        if (tools[i].plugin) {
            button->installEventFilter(this);
            connect(tools[i].plugin, &PluginTool::declined, this, &MainWindow::nothingToPaint);
        }
    }
}

// A double-click on a tool of a plug-in asks for its options.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick) {
        // The button has to be through with the click before a dialog takes the mouse over.
        QTimer::singleShot(0, this, &MainWindow::openOptions);
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace easel::window
