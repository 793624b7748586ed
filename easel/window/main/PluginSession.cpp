// Loads the plug-in and collects its tools.
#include "easel/window/main/PluginSession.h"

#include "easel/runtime/PluginResourceFile.h"
#include "easel/runtime/Storage.h"
#include "easel/runtime/ToolPalette.h"
#include "easel/window/look/PictureIcon.h"
#include "easel/window/main/Workspace.h"

namespace easel::window {
namespace {

QIcon iconOf(const HostTool& tool) {
    const classic::IconResource* resource = runtime::pluginResources().icon(tool.element.icon);
    return resource == nullptr ? QIcon() : pictureIcon(resource->file);
}

} // namespace

PluginSession::PluginSession(const std::filesystem::path& module, const std::filesystem::path& preferences,
                             Workspace& workspace)
    : workspace_(workspace) {
    if (!preferences.empty())
        runtime::useStorage({preferences, classic::StoragePlaces::ofUser().trash});
    try {
        load(module.empty() ? runtime::PluginModule::defaultFile() : module);
    } catch (const runtime::PluginError& error) {
        problem_ =
            QObject::tr("%1\n\nEasel runs without this tool.").arg(QString::fromStdString(error.what()));
    }
}

void PluginSession::load(const std::filesystem::path& module) {
    module_.emplace(module);
    if (const files::FileOutcome outcome = runtime::openPluginResources(module_->resourceFolder()))
        throw runtime::PluginError(outcome->message());
    module_->send(runtime::kStartUpMessage);
    for (const HostTool& tool : runtime::thePalette().tools())
        workspace_.addTool(tool, iconOf(tool));
    // Whoever starts a drawing program with one special tool most likely wants that tool.
    if (!runtime::thePalette().tools().empty())
        workspace_.activateTool(1);
}

PluginSession::~PluginSession() {
    if (!module_)
        return;
    const Waiting::Call call(workspace_.interaction().waiting);
    module_->send(runtime::kShutDownMessage);
    workspace_.removeTools();
    runtime::thePalette().clear();
    runtime::closePluginResources();
}

} // namespace easel::window
