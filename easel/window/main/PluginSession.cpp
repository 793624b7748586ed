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
    const auto loaded = load(module.empty() ? runtime::PluginModule::defaultFile() : module);
    if (!loaded)
        problem_ = QObject::tr("%1\n\nEasel runs without this tool.")
                       .arg(QString::fromStdString(loaded.error().message()));
}

files::Result<> PluginSession::load(const std::filesystem::path& module) {
    auto loaded = runtime::PluginModule::load(module);
    if (!loaded)
        return tl::unexpected(loaded.error());
    module_ = std::move(*loaded);
    if (!module_->resources())
        return module_->resources();
    module_->send(runtime::kStartUpMessage);
    for (const HostTool& tool : runtime::thePalette().tools())
        tools_.add(tool, iconOf(tool));
    // Whoever starts a drawing program with one special tool most likely wants that tool.
    if (!runtime::thePalette().tools().empty())
        tools_.activate(1);
    return {};
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
