// The resources of the plug-in that is loaded.
#pragma once

#include "easel/classic/PluginResources.h"

#include <filesystem>

namespace easel::runtime {

// Without a plug-in there are none, and every look-up finds nothing.
const classic::PluginResources& pluginResources();

// Reads the resources in a module's resource folder, in place of those before. After an error (which names
// the file) there are none.
[[nodiscard]] files::Result<> openPluginResources(const std::filesystem::path& folder);
// To be called when the module is unloaded.
void closePluginResources();

} // namespace easel::runtime
