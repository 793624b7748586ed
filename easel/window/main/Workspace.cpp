// Makes windows and answers what they ask of the program.
#include "easel/window/main/Workspace.h"

#include "easel/files/MemoryErrors.h"
#include "easel/recovery/Journal.h"
#include "easel/window/main/LoadDrawing.h"
#include "easel/window/main/MainWindow.h"
#include "easel/window/main/SharedParts.h"
#include "easel/window/waiting/TellProblem.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QScreen>

#include <algorithm>
#include <optional>

namespace easel::window {
namespace {

// The page of a new drawing, in drawing units.
constexpr double kNewWidth = 800;
constexpr double kNewHeight = 600;
// A new window stands a little to the right of and below the one before.
constexpr QPoint kCascade{28, 28};

// Where the next window begins; at the screen's corner if it would reach beyond the screen elsewhere.
QPoint cascaded(const QWidget& last, const QSize& size) {
    const QRect room = last.screen()->availableGeometry();
    const QRect next(last.pos() + kCascade, size + last.frameGeometry().size() - last.size());
    return room.contains(next) ? next.topLeft() : room.topLeft();
}

} // namespace

Workspace::Workspace(SharedParts& shared)
    : shared_(shared), quitting_(shared.interaction.waiting, [this] { quit(); }),
      leaving_(shared.interaction.waiting, [this] { leave(); }) {}

Workspace::~Workspace() {
    for (const QPointer<MainWindow>& window : std::vector(windows_))
        delete window.data();
}

MainWindow& Workspace::newDrawing() {
    return show({drawing::Drawing::create(kNewWidth, kNewHeight), {}});
}

MainWindow* Workspace::windowShowing(const QString& file) const {
    const QFileInfo wanted(file);
    const auto found =
        std::find_if(windows_.begin(), windows_.end(), [&](const QPointer<MainWindow>& window) {
            return window && !window->file().isEmpty() && QFileInfo(window->file()) == wanted;
        });
    return found == windows_.end() ? nullptr : found->data();
}

void Workspace::openFile(const QString& file, QWidget* over) {
    if (MainWindow* window = windowShowing(file)) {
        window->raise();
        window->activateWindow();
        return;
    }
    auto* place = qobject_cast<MainWindow*>(over);
    if (place && !place->isPristine())
        place = nullptr;
    std::optional<MainWindow::Awaiting> awaiting;
    if (place)
        awaiting.emplace(*place, file);
    auto loaded = loadDrawing(file, shared_.interaction, over);
    if (!loaded) {
        if (!loaded.error().isCancellation())
            tellProblem(loaded.error(), shared_.interaction.dialogs);
        if (!QFileInfo::exists(file))
            shared_.recentFiles.remove(file);
        return;
    }
    const QString path = QFileInfo(file).absoluteFilePath();
    try {
        if (place)
            place->setDrawing(*std::move(loaded));
        else
            show(*std::move(loaded));
    } catch (const std::bad_alloc&) {
        return tellProblem(files::tooLargeForMemory(QFile::encodeName(file).toStdString()),
                           shared_.interaction.dialogs);
    }
    shared_.recentFiles.add(path);
}

bool Workspace::openKept(recovery::Journal& journal, QWidget* over) {
    auto loaded = loadKept(journal, shared_.interaction, over);
    if (!loaded) {
        if (!loaded.error().isCancellation())
            tellProblem(loaded.error(), shared_.interaction.dialogs);
        return false;
    }
    const QString file = QFile::decodeName(journal.origin().c_str());
    MainWindow* place = file.isEmpty() ? nullptr : windowShowing(file);
    if (!place)
        place = qobject_cast<MainWindow*>(over);
    if (place && (place->isUnsaved() || (place->file() != file && !place->isPristine())))
        place = nullptr;
    if (place)
        place->setDrawing(*std::move(loaded));
    else
        place = &show(*std::move(loaded));
    place->adopt(std::move(journal));
    return true;
}

void Workspace::openFiles(const QStringList& files, QWidget* over) {
    // The first file may take the place of the window it was opened from.
    const QPointer<QWidget> from = over;
    for (const QString& file : files)
        openFile(file, from);
}

MainWindow& Workspace::show(LoadedDrawing loaded) {
    const MainWindow* last = windows_.empty() ? nullptr : windows_.back().data();
    auto* window = new MainWindow(shared_, std::move(loaded));
    windows_.emplace_back(window);
    connect(window, &MainWindow::newDrawingWanted, this, [this] { newDrawing(); });
    connect(window, &MainWindow::filesWanted, this,
            [this, window](const QStringList& files) { openFiles(files, window); });
    connect(window, &MainWindow::quitWanted, this, &Workspace::quit);
    connect(window, &MainWindow::closing, this, &Workspace::windowClosing);
    connect(window, &MainWindow::closed, this, [this, window] { windowClosed(*window); });
    if (last)
        window->move(cascaded(*last, window->size()));
    window->show();
    window->activateWindow();
    shared_.interaction.dialogs.setFrontWindow(window);
    return *window;
}

// The session ends with the last window, or when the user quits.
void Workspace::windowClosing() {
    if (windows_.size() == 1 && !isQuitting_)
        rememberSession();
}

void Workspace::rememberSession() {
    SessionMemory::Session session;
    session.tool = shared_.tools.activeIndex();
    for (const QPointer<MainWindow>& window : windows_)
        if (window && !window->file().isEmpty())
            session.drawings.append({window->file(), window->saveGeometry(), window->zoom()});
    shared_.session.keep(session);
}

void Workspace::reopenLast(QWidget* over) {
    const auto session = shared_.session.last();
    if (!session)
        return;
    const QPointer<QWidget> from = over;
    for (const SessionMemory::OpenDrawing& drawing : session->drawings) {
        if (!QFileInfo::exists(drawing.file))
            continue;
        openFile(drawing.file, from);
        if (MainWindow* window = windowShowing(drawing.file))
            window->restore(drawing.geometry, drawing.zoom);
    }
    shared_.tools.activate(session->tool);
}

void Workspace::keepAll() {
    for (const QPointer<MainWindow>& window : windows_)
        if (window)
            window->keepUnsaved();
    rememberSession();
}

bool Workspace::mayEnd() {
    for (const QPointer<MainWindow>& window : std::vector(windows_))
        if (window && !window->mayEnd())
            return false;
    return true;
}

void Workspace::windowClosed(const MainWindow& window) {
    std::erase(windows_, &window);
    if (windows_.empty())
        QCoreApplication::quit();
}

void Workspace::quit() {
    if (quitting_.hasToWait())
        return;
    rememberSession();
    isQuitting_ = true;
    for (const QPointer<MainWindow>& window : std::vector(windows_))
        if (window && !window->close())
            break;
    isQuitting_ = false;
}

void Workspace::leave() {
    if (!leaving_.hasToWait())
        QCoreApplication::exit();
}

} // namespace easel::window
