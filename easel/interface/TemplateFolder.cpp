// Finds the template folder.
#include "easel/interface/TemplateFolder.h"

#include "easel/interface/PluginModule.h"
#include "easel/toolbox/HostNames.h"
#include "easel/toolbox/MacRoman.h"
#include "easel/toolbox/PluginResources.h"

namespace easel::host {

namespace {

constexpr int kTextsId = 5000;
constexpr int kTemplateFolderText = 2;

} // namespace

toolbox::OrFileError<std::filesystem::path> templateFolder(const std::filesystem::path& module,
                                                           const toolbox::StoragePlaces& places) {
    const auto folder = PluginModule::resourceFolder(module);
    const auto resources = toolbox::PluginResources::read(folder);
    if (const auto* const error = std::get_if<toolbox::FileError>(&resources))
        return *error;
    const auto text = std::get<toolbox::PluginResources>(resources).string(kTextsId, kTemplateFolderText);
    const auto name = toolbox::nameOnDisk(toolbox::toMacRoman(text).text);
    if (!name)
        return toolbox::FileError{folder, "it has no name for the template folder", {}};
    return places.preferences / *name;
}

} // namespace easel::host
