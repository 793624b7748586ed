// Loads the plug-in and collects its tools.
#include "easel/window/main/PluginSession.h"

#include "easel/runtime/PluginResourceFile.h"
#include "easel/runtime/Storage.h"
#include "easel/runtime/ToolPalette.h"
#include "easel/window/look/PictureIcon.h"
#include "easel/window/main/ToolChoice.h"
#include "easel/window/waiting/Waiting.h"

namespace easel::window {
namespace {

QIcon iconOf(const HostTool& tool) {
    const classic::IconResource* resource = runtime::pluginResources().icon(tool.element.icon);
    return resource ? pictureIcon(resource->file) : QIcon();
}

} // namespace

PluginSession::PluginSession(const std::filesystem::path& module, const std::filesystem::path& preferences,
                             ToolChoice& tools, Waiting& waiting)
    : tools_(tools), waiting_(waiting) {
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
    if (!module_->resources())
        throw runtime::PluginError(module_->resources().error().message());
    module_->send(runtime::kStartUpMessage);
    for (const HostTool& tool : runtime::thePalette().tools())
        tools_.add(tool, iconOf(tool));
    // Whoever starts a drawing program with one special tool most likely wants that tool.
    if (!runtime::thePalette().tools().empty())
        tools_.activate(1);
}

PluginSession::~PluginSession() {
    if (!module_)
        return;
    const Waiting::Call call(waiting_);
    module_->send(runtime::kShutDownMessage);
    tools_.removePluginTools();
    runtime::thePalette().clear();
    runtime::closePluginResources();
}

} // namespace easel::window
