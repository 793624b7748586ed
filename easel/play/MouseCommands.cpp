// What the user does with mouse and keys.
#include "easel/play/Command.h"
#include "easel/play/PlayError.h"
#include "easel/play/Session.h"
#include "easel/runtime/ToolCalls.h"

namespace easel::play {

namespace {

drawing::Point pointInDrawing(Arguments& arguments) {
    if (arguments.takeIf("item"))
        throw PlayError("no dialog is open");
    const drawing::Point point = arguments.point();
    arguments.done();
    return point;
}

void press(Session& session, Arguments& arguments) {
    const drawing::Point where = pointInDrawing(arguments);
    const HostTool& tool = session.activeTool();
    runtime::DrawingWindow& window = session.frontWindow();
    // The image as it is before the button goes down is what a drag begins with.
    session.paintForPictures();
    session.user().press(where);
    runtime::clickWithTool(tool, window, where);
}

void move(Session& session, Arguments& arguments) {
    const runtime::Dialog* dialog = session.user().questions().frontDialog();
    session.user().moveTo(dialog ? pointInDialog(*dialog, arguments) : pointInDrawing(arguments));
}

void release(Session& session, Arguments& arguments) {
    arguments.done();
    session.user().release();
}

// `click` and `drag` are played as their steps.
void takenApart(Session&, Arguments&) {}

void key(Session& session, Arguments& arguments) {
    const std::string& name = arguments.text("option or shift");
    const std::string& state = arguments.text("up or down");
    arguments.done();
    if (state != "up" && state != "down")
        throw PlayError("\"" + state + "\" is neither up nor down");
    if (name == "option")
        session.user().setOption(state == "down");
    else if (name == "shift")
        session.user().setShift(state == "down");
    else
        throw PlayError("\"" + name + "\" is neither option nor shift");
}

constexpr Command kMouseCommands[] = {
    {"press", When::Idle, press}, {"move", When::Idle, move},        {"release", When::Idle, release},
    {"key", When::Always, key},   {"click", When::Idle, takenApart}, {"drag", When::Idle, takenApart},
};

} // namespace

std::span<const Command> mouseCommands() {
    return kMouseCommands;
}

void playMouseStep(Session& session, const Step& step) {
    Arguments arguments({step.words.begin() + 1, step.words.end()});
    if (step.words[0] == "move")
        move(session, arguments);
    else
        release(session, arguments);
}

} // namespace easel::play
