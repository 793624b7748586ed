// The plug-in as a loadable module: found, loaded, sent messages, unloaded.
#pragma once

#include "easel/files/Result.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

struct XTNLParmBlk;

namespace easel::runtime {

class Process;

constexpr std::int16_t kStartUpMessage = 1;
constexpr std::int16_t kShutDownMessage = 2;

class PluginModule {
  public:
    // Loads the module, finds its entry and opens its resources, with texts in the first of these languages
    // ("de-AT", "de") that the plug-in has, or as it has them without one. An error if the file is missing,
    // no module, or lacks the entry. The process outlives the module.
    static files::Result<std::unique_ptr<PluginModule>>
    load(const std::filesystem::path& file, Process& process, const std::vector<std::string>& languages = {});
    // Takes the plug-in's tools out of the palette, closes its resources and unloads the module.
    ~PluginModule();
    PluginModule(const PluginModule&) = delete;
    PluginModule& operator=(const PluginModule&) = delete;

    // Sends a message as it stands and returns what the entry answers.
    std::int32_t send(std::int16_t message);

    const std::filesystem::path& file() const { return file_; }

    // Whether the plug-in's resources could be read; if not, it runs without texts, dialogs and pictures.
    const files::Result<>& resources() const { return resources_; }

    // The folder of the module's resources: beside the module, under its name.
    std::filesystem::path resourceFolder() const { return resourceFolder(file_); }
    static std::filesystem::path resourceFolder(const std::filesystem::path& file);

    // Where the module that came with this program is, or is expected.
    static std::filesystem::path defaultFile();

  private:
    using Entry = std::int32_t (*)(std::int16_t, XTNLParmBlk*);
    struct Unload {
        void operator()(void* library) const;
    };
    using Library = std::unique_ptr<void, Unload>;

    PluginModule(std::filesystem::path file, Library library, Entry entry, Process& process,
                 const std::vector<std::string>& languages);

    Process& process_;
    std::filesystem::path file_;
    Library library_;
    Entry entry_;
    files::Result<> resources_;
};

} // namespace easel::runtime
