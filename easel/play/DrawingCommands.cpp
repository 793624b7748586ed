// Commands about the drawing at hand: making it, adding objects, undo and the switches.
#include "easel/drawing/Drawing.h"
#include "easel/play/Command.h"
#include "easel/play/NewObject.h"
#include "easel/play/PlayError.h"
#include "easel/play/Session.h"
#include "easel/runtime/PickFilter.h"

namespace easel::play {

namespace {

void newDrawing(Session& session, Arguments& arguments) {
    const double width = arguments.size("W");
    const double height = arguments.size("H");
    arguments.done();
    session.show(drawing::Drawing::create(width, height));
}

void add(Session& session, Arguments& arguments) {
    drawing::Object object = newObject(arguments);
    drawing::Drawing& drawing = session.frontWindow().drawing();
    if (drawing.indexOfId(object.id.text()))
        throw PlayError("there is an object \"" + object.id.text() + "\" already");
    drawing.closeUndo();
    drawing.insert(drawing.size(), sealed(std::move(object)));
}

void gradient(Session& session, Arguments& arguments) {
    const std::size_t index = session.objectIndex(arguments.text("ID"));
    const CGradientData record = gradientRecord(arguments);
    drawing::Drawing& drawing = session.frontWindow().drawing();
    drawing::Object object = *drawing.object(index);
    if (!carriesGradient(object.kind))
        throw PlayError("a " + std::string(kindName(object.kind)) + " carries no gradient");
    object.setFillPattern(drawing::FillPattern::SolidBlack);
    object.setWholeGradient(drawing::ObjectGradient(std::make_unique<CGradient>(record).release()), nullptr);
    drawing.amend(index, sealed(std::move(object)));
}

void undo(Session& session, Arguments& arguments) {
    arguments.done();
    session.frontWindow().drawing().undo();
}

void redo(Session& session, Arguments& arguments) {
    arguments.done();
    session.frontWindow().drawing().redo();
}

void snap(Session& session, Arguments& arguments) {
    const std::string& what = arguments.text("grid or object");
    const runtime::Switch state = arguments.onOff() ? runtime::Switch::On : runtime::Switch::Off;
    arguments.done();
    if (what == "grid")
        session.process().snap().grid = state;
    else if (what == "object")
        session.process().snap().object = state;
    else
        throw PlayError("\"" + what + "\" is neither grid nor object");
}

void filter(Session& session, Arguments& arguments) {
    drawing::KindSet kinds;
    if (arguments.takeIf("all"))
        kinds = drawing::KindSet::all();
    else if (!arguments.takeIf("none"))
        do {
            const std::string& name = arguments.text("KIND");
            const auto kind = drawing::kindFromName(name);
            if (!kind || !canBeAdded(*kind))
                throw PlayError("there is no kind \"" + name + "\"");
            kinds.add(*kind);
        } while (!arguments.empty());
    arguments.done();
    session.process().pickFilter() = runtime::filterOf(kinds);
}

constexpr Command kDrawingCommands[] = {
    {"new", When::Idle, newDrawing}, {"add", When::Idle, add},   {"gradient", When::Idle, gradient},
    {"undo", When::Idle, undo},      {"redo", When::Idle, redo}, {"snap", When::Idle, snap},
    {"filter", When::Idle, filter},
};

} // namespace

std::span<const Command> drawingCommands() {
    return kDrawingCommands;
}

} // namespace easel::play
