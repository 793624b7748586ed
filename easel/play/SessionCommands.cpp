// Commands about the plug-in as a whole: start, quit, message, and what it adds to the palette.
#include "easel/play/Command.h"
#include "easel/play/PlayError.h"
#include "easel/play/Session.h"
#include "easel/runtime/ToolCalls.h"

#include <limits>
#include <nlohmann/json.hpp>

namespace easel::play {

namespace {

void start(Session& session, Arguments& arguments) {
    arguments.done();
    session.plugin().send(runtime::kStartUpMessage);
}

void quit(Session& session, Arguments& arguments) {
    arguments.done();
    if (!session.pluginLoaded())
        throw PlayError("the plug-in is not loaded");
    session.plugin().send(runtime::kShutDownMessage);
    session.unloadPlugin();
}

void message(Session& session, Arguments& arguments) {
    using Limits = std::numeric_limits<std::int16_t>;
    const long number = arguments.integer("N", Limits::min(), Limits::max());
    arguments.done();
    const std::int32_t result = session.plugin().send(static_cast<std::int16_t>(number));
    session.print({{"message", number}, {"result", result}});
}

void options(Session& session, Arguments& arguments) {
    arguments.done();
    runtime::openToolOptions(session.activeTool());
}

void cursor(Session& session, Arguments& arguments) {
    arguments.done();
    runtime::updateToolCursor(session.activeTool(), session.frontWindow());
}

void switchJournal(Session& session, Arguments& arguments) {
    const bool on = arguments.onOff();
    arguments.done();
    if (on)
        session.process().journal().switchOn();
    else
        session.process().journal().switchOff();
}

constexpr Command kSessionCommands[] = {
    {"start", When::Idle, start},     {"quit", When::Idle, quit},
    {"message", When::Idle, message}, {"options", When::Idle, options},
    {"cursor", When::Idle, cursor},   {"journal", When::Always, switchJournal},
};

} // namespace

std::span<const Command> sessionCommands() {
    return kSessionCommands;
}

} // namespace easel::play
