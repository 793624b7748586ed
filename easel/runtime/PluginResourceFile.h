// The resources of the plug-in that is loaded.
#pragma once

#include "easel/classic/PluginResources.h"

#include <filesystem>
#include <string>
#include <vector>

namespace easel::runtime {

class PluginResourceFile {
  public:
    // Without a plug-in there are none, and every look-up finds nothing.
    const classic::PluginResources& resources() const { return resources_; }

    // Reads the resources in a module's resource folder, with texts in the first of the languages that there
    // is a file for. After an error (which names the file) there are none.
    [[nodiscard]] files::Result<> open(const std::filesystem::path& folder,
                                       const std::vector<std::string>& languages = {});
    void close() { resources_ = {}; }

  private:
    classic::PluginResources resources_;
};

} // namespace easel::runtime
