// Plays a scenario step by step.
#include "easel/play/Session.h"

#include "easel/play/Arguments.h"
#include "easel/play/Command.h"
#include "easel/play/PlayError.h"
#include "easel/play/Waiting.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

namespace easel::play {

namespace {

// Checks the whole step before it is played, so that a command that does not exist is never half played.
const Command& commandOf(const Step& step) {
    const Command* command = findCommand(step.words[0]);
    if (!command)
        throw PlayError("there is no command \"" + step.words[0] + "\"");
    return *command;
}

void playCommand(Session& session, const Command& command, const Step& step) {
    Arguments arguments({step.words.begin() + 1, step.words.end()});
    command.play(session, arguments);
}

} // namespace

bool playAtAnyTime(Session& session, const Step& step) {
    const Command& command = commandOf(step);
    if (command.when != When::Always)
        return false;
    playCommand(session, command, step);
    return true;
}

Session::Session(SessionPlan plan, runtime::Process& process)
    : process_(process), plan_(std::move(plan)), steps_(plan_.script), user_(*this), inFront_(process, user_),
      looksAtPictures_(plan_.script.find("picture") != std::string::npos) {}

Session::~Session() = default;

bool Session::play() {
    while (const auto step = steps_.next())
        playStep(*step);
    if (user_.holdsButton())
        steps_.failAtEnd("the scenario ends while the mouse button is held");
    user_.letGo();
    if (!steps_.outcome())
        report(steps_.outcome().error());
    return steps_.outcome().has_value();
}

void Session::playStep(const Step& step) {
    try {
        playCommand(*this, commandOf(step), step);
    } catch (const std::exception& error) {
        steps_.fail(step.line, reasonOf(error));
    }
}

void Session::report(const ScenarioError& error) {
    say(plan_.name + ":" + std::to_string(error.line) + ": " + error.reason);
}

std::filesystem::path Session::resolve(const std::string& path) const {
    if (path.empty())
        throw PlayError("a file name is empty");
    return plan_.folder / std::filesystem::path(path);
}

void Session::print(const nlohmann::ordered_json& answer) {
    *plan_.answers << answer.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n'
                   << std::flush;
}

void Session::say(const std::string& message) {
    *plan_.messages << message << '\n' << std::flush;
}

void Session::show(drawing::Drawing drawing) {
    windows_.push_back(std::make_unique<runtime::DrawingWindow>(std::move(drawing), process_));
    windows_.back()->activate();
}

runtime::DrawingWindow& Session::frontWindow() {
    if (windows_.empty())
        throw PlayError("no drawing is open");
    return *windows_.back();
}

std::size_t Session::objectIndex(const std::string& id) {
    const drawing::Drawing& drawing = frontWindow().drawing();
    if (const auto named = drawing.indexOfId(id))
        return *named;
    if (!id.starts_with('@'))
        throw PlayError("there is no object \"" + id + "\"");
    const long index = parseInteger(id.substr(1), "the index", 0, std::numeric_limits<long>::max());
    if (static_cast<std::size_t>(index) >= drawing.size())
        throw PlayError("there is no object " + id + ": the drawing has " + std::to_string(drawing.size()));
    return static_cast<std::size_t>(index);
}

void Session::paintForPictures() {
    if (looksAtPictures_)
        frontWindow().paintMarked();
}

runtime::PluginModule& Session::plugin() {
    if (!plugin_) {
        auto loaded = runtime::PluginModule::load(plan_.plugin, process_);
        if (!loaded)
            throw PlayError(loaded.error().message());
        plugin_ = std::move(*loaded);
        if (!plugin_->resources())
            say(plugin_->resources().error().message());
    }
    return *plugin_;
}

const HostTool& Session::activeTool() const {
    const auto& tools = process_.palette().tools();
    if (tools.empty())
        throw PlayError("no tool is active; the scenario has to start the plug-in first");
    return tools.back();
}

long Session::gradientNumber(const drawing::ObjectGradient& gradient) {
    const CGradient* wanted = gradient;
    const auto known =
        std::find_if(knownGradients_.begin(), knownGradients_.end(), [&](const drawing::ObjectGradient& one) {
            return static_cast<const CGradient*>(one) == wanted;
        });
    const auto number = known - knownGradients_.begin() + 1;
    if (known == knownGradients_.end())
        knownGradients_.push_back(gradient);
    return number;
}

} // namespace easel::play
