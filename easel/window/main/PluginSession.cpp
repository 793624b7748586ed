// Loads the plug-in and collects its tools.
#include "easel/window/main/PluginSession.h"

#include "easel/runtime/Process.h"
#include "easel/window/look/PictureIcon.h"
#include "easel/window/main/ToolChoice.h"
#include "easel/window/waiting/CoreTexts.h"
#include "easel/window/waiting/Waiting.h"

namespace easel::window {
namespace {

QIcon iconOf(const HostTool& tool, const classic::PluginResources& resources) {
    const classic::IconResource* resource = resources.icon(tool.element.icon);
    return resource ? pictureIcon(resource->file) : QIcon();
}

} // namespace

PluginSession::PluginSession(const std::filesystem::path& module, const std::vector<std::string>& languages,
                             runtime::Process& process, ToolChoice& tools, Waiting& waiting)
    : process_(process), tools_(tools), waiting_(waiting) {
    const auto loaded = load(module.empty() ? runtime::PluginModule::defaultFile() : module, languages);
    if (!loaded)
        problem_ = QObject::tr("%1\n\nEasel runs without this tool.").arg(inUsersLanguage(loaded.error()));
}

files::Result<> PluginSession::load(const std::filesystem::path& module,
                                    const std::vector<std::string>& languages) {
    auto loaded = runtime::PluginModule::load(module, process_, languages);
    if (!loaded)
        return tl::unexpected(loaded.error());
    module_ = std::move(*loaded);
    if (!module_->resources()) {
        files::Result<> trouble = module_->resources();
        module_.reset();
        return trouble;
    }
    module_->send(runtime::kStartUpMessage);
    for (const HostTool& tool : process_.palette().tools())
        tools_.add(tool, iconOf(tool, process_.plugin().resources()));
    // Whoever starts a drawing program with one special tool most likely wants that tool.
    if (!process_.palette().tools().empty())
        tools_.activate(1);
    return {};
}

PluginSession::~PluginSession() {
    if (!module_)
        return;
    const Waiting::Call call(waiting_);
    module_->send(runtime::kShutDownMessage);
    tools_.removePluginTools();
}

} // namespace easel::window
