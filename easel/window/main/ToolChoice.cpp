// Keeps the list of tools.
#include "easel/window/main/ToolChoice.h"

#include "easel/runtime/ToolPalette.h"
#include "easel/window/look/Icons.h"

namespace easel::window {

ToolChoice::ToolChoice(Interaction& interaction) : interaction_(interaction) {
    tools_.push_back({tr("Select"), icon(IconName::Select), &selectTool_, nullptr});
}

ToolChoice::~ToolChoice() = default;

void ToolChoice::add(const HostTool& tool, const QIcon& icon) {
    pluginTools_.push_back(std::make_unique<PluginTool>(tool, interaction_));
    PluginTool* made = pluginTools_.back().get();
    tools_.push_back({QString::fromStdString(tool.name), icon, made, made});
}

void ToolChoice::removePluginTools() {
    active_ = 0;
    tools_.resize(1);
    pluginTools_.clear();
}

void ToolChoice::activate(std::size_t index) {
    if (index == active_ || index >= tools_.size())
        return;
    active_ = index;
    Q_EMIT activeChanged();
}

} // namespace easel::window
