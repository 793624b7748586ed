// Opens and closes windows and keeps the tools.
#include "easel/window/main/Workspace.h"

#include "easel/runtime/ToolPalette.h"
#include "easel/window/look/Icons.h"
#include "easel/window/main/LoadDrawing.h"
#include "easel/window/main/MainWindow.h"
#include "easel/window/waiting/TellProblem.h"

#include <QApplication>
#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace easel::window {
namespace {

// The page of a new drawing, in drawing units.
constexpr double kNewWidth = 800;
constexpr double kNewHeight = 600;
// A new window stands a little to the right of and below the one before.
constexpr QPoint kCascade{28, 28};

} // namespace

Workspace::Workspace(std::string version, Interaction& interaction, OpenCanvases& canvases)
    : version_(std::move(version)), interaction_(interaction), canvases_(canvases),
      quitting_(interaction.waiting, [this] { quit(); }) {
    tools_.push_back({tr("Select"), icon(IconName::Select), &selectTool_, nullptr});
}

Workspace::~Workspace() {
    for (const QPointer<MainWindow>& window : std::vector(windows_))
        delete window.data();
}

void Workspace::addTool(const HostTool& tool, const QIcon& icon) {
    pluginTools_.push_back(std::make_unique<PluginTool>(tool, interaction_));
    PluginTool* made = pluginTools_.back().get();
    tools_.push_back({QString::fromStdString(tool.name), icon, made, made});
}

void Workspace::removeTools() {
    active_ = 0;
    tools_.resize(1);
    pluginTools_.clear();
}

void Workspace::activateTool(std::size_t index) {
    if (index == active_ || index >= tools_.size())
        return;
    active_ = index;
    Q_EMIT activeToolChanged();
}

MainWindow& Workspace::newDrawing() {
    return show(drawing::Drawing::create(kNewWidth, kNewHeight), {});
}

MainWindow* Workspace::windowShowing(const QString& file) const {
    const QFileInfo wanted(file);
    const auto found =
        std::find_if(windows_.begin(), windows_.end(), [&](const QPointer<MainWindow>& window) {
            return window != nullptr && !window->file().isEmpty() && QFileInfo(window->file()) == wanted;
        });
    return found == windows_.end() ? nullptr : found->data();
}

bool Workspace::openFile(const QString& file, QWidget* over) {
    if (MainWindow* window = windowShowing(file)) {
        window->raise();
        window->activateWindow();
        return true;
    }
    auto* place = qobject_cast<MainWindow*>(over);
    if (place != nullptr && !place->isPristine())
        place = nullptr;
    std::optional<MainWindow::Awaiting> awaiting;
    if (place != nullptr)
        awaiting.emplace(*place, file);
    svg::ReadResult result = loadDrawing(file, interaction_, over);
    if (const auto* failure = std::get_if<svg::Failure>(&result)) {
        if (failure->fault != svg::Fault::Cancelled)
            tellProblem(failure->message, interaction_.dialogs);
        if (!QFileInfo::exists(file))
            recentFiles_.remove(file);
        return false;
    }
    auto& drawing = std::get<drawing::Drawing>(result);
    const QString path = QFileInfo(file).absoluteFilePath();
    if (place != nullptr)
        place->setDrawing(std::move(drawing), path);
    else
        show(std::move(drawing), path);
    recentFiles_.add(path);
    return true;
}

void Workspace::openFiles(const QStringList& files, QWidget* over) {
    // The first file may take the place of the window it was opened from.
    const QPointer<QWidget> from = over;
    for (const QString& file : files)
        openFile(file, from);
}

MainWindow& Workspace::show(drawing::Drawing drawing, const QString& file) {
    const MainWindow* last = windows_.empty() ? nullptr : windows_.back().data();
    auto* window = new MainWindow(*this, std::move(drawing), file);
    windows_.emplace_back(window);
    if (last != nullptr)
        window->move(last->pos() + kCascade);
    window->show();
    window->activateWindow();
    interaction_.dialogs.setFrontWindow(window);
    return *window;
}

void Workspace::tell(const QString& message) {
    tellProblem(message.toStdString(), interaction_.dialogs);
}

void Workspace::windowClosed(MainWindow& window) {
    std::erase(windows_, &window);
    if (windows_.empty())
        QCoreApplication::quit();
}

void Workspace::quit() {
    if (quitting_.hasToWait())
        return;
    for (const QPointer<MainWindow>& window : std::vector(windows_))
        if (window != nullptr && !window->close())
            return;
}

} // namespace easel::window
