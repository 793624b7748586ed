// What the gradient menu does to shapes and strokes, as a command.
#include "easel/drawing/SelectedGradients.h"
#include "easel/play/Command.h"
#include "easel/play/PlayError.h"
#include "easel/play/Session.h"

#include <map>

namespace easel::play {

namespace {

using drawing::GradientCommand;
using drawing::GradientFrame;
using drawing::PaintStep;
using drawing::WholeGradient;

PaintStep partNamed(Arguments& arguments) {
    if (arguments.takeIf("fill"))
        return PaintStep::Fill;
    if (arguments.takeIf("stroke"))
        return PaintStep::Stroke;
    throw PlayError("\"" + arguments.text("fill or stroke") + "\" is neither fill nor stroke");
}

template <class Command> GradientCommand plain(Command command) {
    return [command](const WholeGradient& gradient, const GradientFrame&) { return command(gradient); };
}

GradientCommand scaled(Arguments& arguments) {
    const double factor = arguments.number("FACTOR");
    if (factor < 0)
        throw PlayError("an opacity is not negative");
    return plain([factor](const WholeGradient& gradient) { return opacityScaled(gradient, factor); });
}

GradientCommand turned(Arguments& arguments) {
    const double degrees = arguments.number("DEGREES");
    return [degrees](const WholeGradient& gradient, const GradientFrame& frame) {
        return rotated(gradient, degrees, frame.outline.bounds());
    };
}

GradientCommand commandNamed(Arguments& arguments) {
    static const std::map<std::string, GradientCommand> kPlain = {{"reverse", drawing::reversed},
                                                                  {"opaque", plain(drawing::madeOpaque)},
                                                                  {"circular", plain(drawing::madeCircular)},
                                                                  {"even", plain(drawing::withEvenStops)}};
    if (arguments.takeIf("opacity"))
        return scaled(arguments);
    if (arguments.takeIf("rotate"))
        return turned(arguments);
    const std::string& name = arguments.text("COMMAND");
    const auto found = kPlain.find(name);
    if (found == kPlain.end())
        throw PlayError("there is no \"" + name + "\" in the gradient menu");
    return found->second;
}

WholeGradient copied(Session& session, Arguments& arguments) {
    const PaintStep part = partNamed(arguments);
    const std::string& id = arguments.text("ID");
    const auto gradient =
        wholeGradientOf(*session.frontWindow().drawing().object(session.objectIndex(id)), part);
    if (!gradient)
        throw PlayError("the object \"" + id + "\" has no gradient there");
    return *gradient;
}

void change(Session& session, Arguments& arguments) {
    const PaintStep part = partNamed(arguments);
    const std::size_t index = session.objectIndex(arguments.text("ID"));
    drawing::Drawing& drawing = session.frontWindow().drawing();
    drawing.unselectAll();
    drawing.select(index);
    if (!canTakeGradient(drawing, part))
        throw PlayError("this object takes no gradient there");
    if (arguments.takeIf("like")) {
        const WholeGradient gradient = copied(session, arguments);
        arguments.done();
        changeSelectedObjects(drawing, part,
                              [&](drawing::Object& object) { putGradient(object, gradient, part); });
        return;
    }
    const GradientCommand command = commandNamed(arguments);
    arguments.done();
    changeSelected(drawing, part, command);
}

constexpr Command kGradientMenuCommands[] = {{"change", When::Idle, change}};

} // namespace

std::span<const Command> gradientMenuCommands() {
    return kGradientMenuCommands;
}

} // namespace easel::play
