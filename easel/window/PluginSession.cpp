// Loads the plug-in and collects its tools.
#include "easel/window/PluginSession.h"

#include "easel/interface/PluginResourceFile.h"
#include "easel/interface/Storage.h"
#include "easel/interface/ToolPalette.h"
#include "easel/window/PictureIcon.h"
#include "easel/window/Workspace.h"

namespace easel::window {
namespace {

QIcon iconOf(const HostTool& tool) {
    const classic::IconResource* resource = host::pluginResources().icon(tool.element.icon);
    return resource == nullptr ? QIcon() : pictureIcon(resource->file);
}

} // namespace

PluginSession::PluginSession(const std::filesystem::path& module, const std::filesystem::path& preferences,
                             Workspace& workspace)
    : workspace_(workspace) {
    if (!preferences.empty())
        host::useStorage({preferences, classic::StoragePlaces::ofUser().trash});
    try {
        load(module.empty() ? host::PluginModule::defaultFile() : module);
    } catch (const host::PluginError& error) {
        problem_ =
            QObject::tr("%1\n\nEasel runs without this tool.").arg(QString::fromStdString(error.what()));
    }
}

void PluginSession::load(const std::filesystem::path& module) {
    module_.emplace(module);
    if (const files::FileOutcome outcome = host::openPluginResources(module_->resourceFolder()))
        throw host::PluginError(outcome->message());
    module_->send(host::kStartUpMessage);
    for (const HostTool& tool : host::thePalette().tools())
        workspace_.addTool(tool, iconOf(tool));
    // Whoever starts a drawing program with one special tool most likely wants that tool.
    if (!host::thePalette().tools().empty())
        workspace_.activateTool(1);
}

PluginSession::~PluginSession() {
    if (!module_)
        return;
    const DesktopUser::Call call(workspace_.user());
    module_->send(host::kShutDownMessage);
    workspace_.removeTools();
    host::thePalette().clear();
    host::closePluginResources();
}

} // namespace easel::window
