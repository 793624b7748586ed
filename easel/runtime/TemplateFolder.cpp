// Finds the template folder.
#include "easel/runtime/TemplateFolder.h"

#include "easel/classic/HostNames.h"
#include "easel/classic/MacRoman.h"
#include "easel/classic/PluginResources.h"
#include "easel/runtime/PluginModule.h"

namespace easel::runtime {

namespace {

constexpr int kTextsId = 5000;
constexpr int kTemplateFolderText = 2;

} // namespace

files::Result<std::filesystem::path> templateFolder(const std::filesystem::path& module,
                                                    const classic::StoragePlaces& places) {
    const auto folder = PluginModule::resourceFolder(module);
    const auto resources = classic::PluginResources::read(folder);
    if (!resources)
        return tl::unexpected(resources.error());
    const auto text = resources->string(kTextsId, kTemplateFolderText);
    const auto name = classic::nameOnDisk(classic::toMacRoman(text).value_or(""));
    if (!name)
        return tl::unexpected(files::Error{folder, "it has no name for the template folder", {}});
    return places.preferences / *name;
}

} // namespace easel::runtime
