// A tool that a plug-in registered, on the canvas.
#pragma once

#include "easel/window/canvas/CanvasTool.h"

#include <QObject>

struct HostTool;

namespace easel::window {

struct Interaction;

class PluginTool : public QObject, public CanvasTool {
    Q_OBJECT

  public:
    // Neither is owned; both outlive the tool.
    PluginTool(const HostTool& tool, Interaction& interaction);

    void press(Canvas& canvas, const QMouseEvent& event) override;
    bool key(Canvas& canvas, const QKeyEvent& event) override;
    void updateCursor(Canvas& canvas) override;
    void openOptions();
    const HostTool& tool() const { return tool_; }

  Q_SIGNALS:
    // The click found nothing that the tool could work on.
    void declined();

  private:
    // The button has gone down at this place of the viewport.
    void work(Canvas& canvas, QPointF place);

    const HostTool& tool_;
    Interaction& interaction_;
};

} // namespace easel::window
