// Reads the resources of a plug-in.
#include "easel/runtime/PluginResourceFile.h"

namespace easel::runtime {

files::Result<> PluginResourceFile::open(const std::filesystem::path& folder,
                                         const std::vector<std::string>& languages) {
    close();
    return classic::PluginResources::read(folder, languages)
        .map([this](classic::PluginResources&& resources) { resources_ = std::move(resources); });
}

} // namespace easel::runtime
