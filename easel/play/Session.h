// One scenario being played: its drawings, the plug-in, the user and what is printed.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/play/ScriptedUser.h"
#include "easel/play/Steps.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/PluginModule.h"
#include "easel/runtime/Process.h"

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

namespace easel::play {

// Streams are not owned and outlive the session.
struct SessionPlan {
    std::string script;
    std::string name;             // what messages call the scenario
    std::filesystem::path folder; // what relative paths start from
    std::filesystem::path plugin; // the module
    std::ostream* answers = nullptr;
    std::ostream* messages = nullptr;
};

class Session {
  public:
    // While it lives, the session is the user of the process, which outlives it.
    Session(SessionPlan plan, runtime::Process& process);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Plays the scenario to its end or to the first step that cannot be played, which is then reported. True
    // for the end.
    bool play();

    // --- For commands.
    runtime::Process& process() { return process_; }
    ScriptedUser& user() { return user_; }
    Steps& steps() { return steps_; }
    std::filesystem::path resolve(const std::string& path) const;
    // Writes a line of JSON.
    void print(const nlohmann::ordered_json& answer);
    // Writes a line for people.
    void say(const std::string& message);

    // Shows a drawing in a window of its own, in front of the others.
    void show(drawing::Drawing drawing);
    bool hasWindow() const { return !windows_.empty(); }
    // Throws PlayError if there is none.
    runtime::DrawingWindow& frontWindow();
    // The index of an object of the front drawing: its element's id, or `@N` for index N. Throws PlayError.
    std::size_t objectIndex(const std::string& id);

    // Brings the front window's image up to date, in scenarios that look at pictures.
    void paintForPictures();

    // Throws PlayError if the module cannot be loaded.
    runtime::PluginModule& plugin();
    const std::filesystem::path& pluginFile() const { return plan_.plugin; }
    bool pluginLoaded() const { return plugin_ != nullptr; }
    void unloadPlugin() { plugin_.reset(); }
    // Throws PlayError if no tool has been registered.
    const HostTool& activeTool() const;

    // A small number for each gradient that was ever asked for, the same for the same one throughout.
    long gradientNumber(const drawing::ObjectGradient& gradient);

  private:
    void playStep(const Step& step);
    void report(const ScenarioError& error);

    runtime::Process& process_;
    SessionPlan plan_;
    Steps steps_;
    ScriptedUser user_;
    runtime::UserScope inFront_;
    std::vector<std::unique_ptr<runtime::DrawingWindow>> windows_; // the front one last
    // Held so that no address is used twice.
    std::vector<drawing::ObjectGradient> knownGradients_;
    bool looksAtPictures_;
    std::unique_ptr<runtime::PluginModule> plugin_;
};

// Plays `press`, `move` or `release`.
void playMouseStep(Session& session, const Step& step);

} // namespace easel::play
