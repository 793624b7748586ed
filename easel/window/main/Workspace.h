// All open windows, the tools they share, and what concerns the program as a whole.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/window/canvas/PluginTool.h"
#include "easel/window/canvas/SelectTool.h"
#include "easel/window/main/RecentFiles.h"
#include "easel/window/waiting/CancelFirst.h"
#include "easel/window/waiting/Interaction.h"

#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>
#include <string>
#include <vector>

struct HostTool;

namespace easel::window {

class MainWindow;
class OpenCanvases;

// A tool as the palette shows it.
struct PaletteTool {
    QString name;
    QIcon icon;
    CanvasTool* tool = nullptr;
    PluginTool* plugin = nullptr; // null for a tool without options
};

class Workspace : public QObject {
    Q_OBJECT

  public:
    Workspace(std::string version, Interaction& interaction, OpenCanvases& canvases);
    ~Workspace() override;

    Interaction& interaction() { return interaction_; }
    OpenCanvases& canvases() { return canvases_; }
    RecentFiles& recentFiles() { return recentFiles_; }
    const std::string& version() const { return version_; }

    // Tools, the host's own first. The active one is the same in all windows.
    void addTool(const HostTool& tool, const QIcon& icon);
    // All but the host's own, before the plug-in behind them goes. No window is open then.
    void removeTools();
    const std::vector<PaletteTool>& tools() const { return tools_; }
    const PaletteTool& activeTool() const { return tools_[active_]; }
    void activateTool(std::size_t index);

    MainWindow& newDrawing();
    // Opens the file in a window of its own, or in the window `over` if that holds nothing yet, or brings the
    // window that shows it to the front. Tells the user why it cannot; false then.
    bool openFile(const QString& file, QWidget* over);
    // Opens one after the other, whichever of them can be opened.
    void openFiles(const QStringList& files, QWidget* over);
    const std::vector<QPointer<MainWindow>>& windows() const { return windows_; }
    void windowClosed(MainWindow& window);
    // Closes all windows, asking about unsaved changes. What the plug-in waits for is cancelled first.
    void quit();

    // Shows a message box; "FILE: reason" or a sentence.
    void tell(const QString& message);

  Q_SIGNALS:
    void activeToolChanged();

  private:
    MainWindow& show(drawing::Drawing drawing, const QString& file);
    MainWindow* windowShowing(const QString& file) const;

    std::string version_;
    Interaction& interaction_;
    OpenCanvases& canvases_;
    RecentFiles recentFiles_;
    SelectTool selectTool_;
    std::vector<std::unique_ptr<PluginTool>> pluginTools_;
    std::vector<PaletteTool> tools_;
    std::size_t active_ = 0;
    std::vector<QPointer<MainWindow>> windows_;
    CancelFirst quitting_;
};

} // namespace easel::window
