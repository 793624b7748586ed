// The plug-in from its loading to its unloading.
#pragma once

#include "easel/runtime/PluginModule.h"

#include <QString>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace easel::window {

class ToolChoice;
class Waiting;

// Loads the plug-in, sends it the start-up message and adds its tools to those of the palette; at the end
// sends the shut-down message and unloads it. Without a usable plug-in there are no tools of its, and a
// problem to tell.
class PluginSession {
  public:
    // An empty path stands for the usual place. The languages are those of the user, as the module takes
    // them. The others outlive the session.
    PluginSession(const std::filesystem::path& module, const std::vector<std::string>& languages,
                  runtime::Process& process, ToolChoice& tools, Waiting& waiting);
    ~PluginSession();
    PluginSession(const PluginSession&) = delete;
    PluginSession& operator=(const PluginSession&) = delete;

    // Why there is no plug-in, naming the file; empty if there is one.
    const QString& problem() const { return problem_; }

  private:
    files::Result<> load(const std::filesystem::path& module, const std::vector<std::string>& languages);

    runtime::Process& process_;
    ToolChoice& tools_;
    Waiting& waiting_;
    std::unique_ptr<runtime::PluginModule> module_;
    QString problem_;
};

} // namespace easel::window
