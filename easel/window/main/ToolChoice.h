// The tools of the palette, and which of them is active: the same in all windows.
#pragma once

#include "easel/window/canvas/PluginTool.h"
#include "easel/window/canvas/SelectTool.h"

#include <QIcon>
#include <QObject>
#include <QString>

#include <memory>
#include <vector>

namespace easel::window {

// A tool as the palette shows it.
struct PaletteTool {
    QString name;
    QIcon icon;
    CanvasTool* tool = nullptr;
    PluginTool* plugin = nullptr; // null for a tool without options
};

class ToolChoice : public QObject {
    Q_OBJECT

  public:
    // Holds the host's own tool, which is active. The interaction outlives this.
    explicit ToolChoice(Interaction& interaction);
    ~ToolChoice() override;

    // A plug-in's tool, which outlives its place here.
    void add(const HostTool& tool, const QIcon& icon);
    // All but the host's own, before the plug-in behind them goes. No window is open then.
    void removePluginTools();

    // The host's own first.
    const std::vector<PaletteTool>& tools() const { return tools_; }
    const PaletteTool& active() const { return tools_[active_]; }
    std::size_t activeIndex() const { return active_; }
    // Nothing if there is no such tool.
    void activate(std::size_t index);

  Q_SIGNALS:
    void activeChanged();

  private:
    Interaction& interaction_;
    SelectTool selectTool_;
    std::vector<std::unique_ptr<PluginTool>> pluginTools_;
    std::vector<PaletteTool> tools_;
    std::size_t active_ = 0;
};

} // namespace easel::window
