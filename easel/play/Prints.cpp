// Prints objects, the gradients drawn in them, windows and the palette.
#include "easel/play/Prints.h"

#include "easel/drawing/GradientFit.h"
#include "easel/drawing/StrokeGradient.h"
#include "easel/play/NewObject.h"
#include "easel/play/PlayError.h"
#include "easel/play/Session.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/PickFilter.h"

namespace easel::play {

namespace {

constexpr int kSlots = 8;

const drawing::Object& objectNamed(Session& session, const std::string& id) {
    return *session.frontWindow().drawing().object(session.objectIndex(id));
}

const char* nameOf(drawing::FillPattern pattern) {
    switch (pattern) {
    case drawing::FillPattern::None:
        return "none";
    case drawing::FillPattern::SolidBlack:
        return "solid-black";
    case drawing::FillPattern::Other:
        break;
    }
    return "other";
}

Json stopOf(double position, std::uint16_t red, std::uint16_t green, std::uint16_t blue) {
    return Json::array({jsonNumber(position), red, green, blue});
}

Json opacityOf(const drawing::Remainder& remainder) {
    if (remainder.opacity.empty())
        return nullptr;
    Json stops = Json::array();
    for (const drawing::OpacityStop& stop : remainder.opacity)
        stops.push_back({jsonNumber(stop.position), jsonNumber(stop.opacity)});
    return stops;
}

Json ellipseOf(const drawing::Remainder& remainder) {
    if (!remainder.ellipse)
        return nullptr;
    const drawing::Affine& map = *remainder.ellipse;
    return {jsonNumber(map.a), jsonNumber(map.b), jsonNumber(map.c), jsonNumber(map.d)};
}

Json gradientOf(Session& session, const drawing::ShapeGradient& gradient) {
    const CGradient* shared = gradient.record;
    if (!shared)
        return nullptr;
    const CGradientData& record = shared->GetGradientData();
    Json stops = Json::array();
    for (const CGradientColor& stop : record.ColorList()) {
        const RGBColor color = stop.ColorRGB();
        stops.push_back(stopOf(stop.Percent(), color.red, color.green, color.blue));
    }
    Json answer = {{"type", static_cast<std::int32_t>(record.Type())},
                   {"angle", jsonNumber(static_cast<double>(record.Angle()))},
                   {"start", jsonPoint(runtime::toPoint(record.Start()))},
                   {"end", jsonPoint(runtime::toPoint(record.End()))},
                   {"startRadius", jsonNumber(record.StartRadius())},
                   {"endRadius", jsonNumber(record.EndRadius())},
                   {"stops", std::move(stops)},
                   {"resource", session.gradientNumber(gradient.record)}};
    if (gradient.remainder) {
        answer["opacity"] = opacityOf(*gradient.remainder);
        answer["ellipse"] = ellipseOf(*gradient.remainder);
    }
    return answer;
}

// What an object is called in answers: its id, or its index if it has none.
std::string nameOf(const drawing::Object& object, std::size_t index) {
    std::string name = object.id.text();
    if (name.empty())
        name.append(1, '@').append(std::to_string(index));
    return name;
}

Json objectsOf(const drawing::Drawing& drawing) {
    Json names = Json::array();
    drawing.forEach(
        [&](const drawing::ObjectPtr& object) { names.push_back(nameOf(*object, names.size())); });
    return names;
}

Json selectionOf(const drawing::Drawing& drawing) {
    Json names = Json::array();
    for (const std::size_t index : drawing.selection())
        names.push_back(nameOf(*drawing.object(index), index));
    return names;
}

Json optionalNumber(std::optional<long> number) {
    return number ? Json(*number) : Json(nullptr);
}

Json filterNames(const SelDescrimT& filter) {
    Json names = Json::array();
    const drawing::KindSet kinds = runtime::kindsIn(filter);
    for (const drawing::Kind kind : drawing::kAllKinds)
        if (kinds.has(kind) && canBeAdded(kind))
            names.push_back(std::string(kindName(kind)));
    return names;
}

const char* nameOf(runtime::SlotOwner owner) {
    switch (owner) {
    case runtime::SlotOwner::None:
        return "none";
    case runtime::SlotOwner::Host:
        return "host";
    case runtime::SlotOwner::Plugin:
        break;
    }
    return "plugin";
}

Json toolOf(const HostTool& tool) {
    Json methods = Json::array();
    for (int slot = 1; slot <= kSlots; ++slot)
        methods.push_back(nameOf(tool.slotOwner(slot)));
    const PaletteElement& element = tool.element;
    return {
        {"tool", tool.number},
        {"name", tool.name},
        {"element", {element.icon, element.group, element.position, element.attributes, element.available}},
        {"nameCode", tool.nameCode},
        {"flags", tool.flags},
        {"methods", std::move(methods)}};
}

} // namespace

Json printObject(Session& session, Arguments& arguments) {
    const std::string& id = arguments.text("ID");
    const std::size_t index = session.objectIndex(id);
    const drawing::Object& object = objectNamed(session, id);
    return {{"object", id},
            {"kind", std::string(kindName(object.kind))},
            {"index", index},
            {"fillPattern", nameOf(object.fillPattern)},
            {"gradient", gradientOf(session, drawing::shapeGradientOf(object))}};
}

Json printStroke(Session& session, Arguments& arguments) {
    const std::string& id = arguments.text("ID");
    return {{"stroke", id}, {"gradient", gradientOf(session, strokeGradientOf(objectNamed(session, id)))}};
}

// The focus is told where it is drawn, not in the space where ellipses are circles.
drawing::GradientGeometry fitted(const CGradientData& record, const drawing::RemainderPtr& remainder,
                                 const drawing::Path& outline) {
    drawing::Gradient gradient = drawing::fitGradient(record, remainder.get(), outline);
    if (auto* const circles = std::get_if<drawing::RadialGeometry>(&gradient.geometry))
        circles->focus = gradient.toDrawing(circles->focus);
    return gradient.geometry;
}

// A line is told as two circles without extent.
drawing::RadialGeometry ends(const drawing::GradientGeometry& geometry) {
    if (const auto* const line = std::get_if<drawing::LinearGeometry>(&geometry))
        return {line->start, 0, line->end, 0};
    return std::get<drawing::RadialGeometry>(geometry);
}

Json printFit(Session& session, Arguments& arguments) {
    const std::string& id = arguments.text("ID");
    const drawing::Object& object = objectNamed(session, id);
    const drawing::ShapeGradient held = drawing::shapeGradientOf(object);
    const CGradient* gradient = held.record;
    if (!gradient)
        throw PlayError("the object \"" + id + "\" has no gradient");
    const CGradientData& record = gradient->GetGradientData();
    const drawing::RadialGeometry fit = ends(fitted(record, held.remainder, object.outline));
    Json stops = Json::array();
    for (const drawing::RampStop& stop : drawing::completeStops(record))
        stops.push_back(stopOf(stop.position, stop.color.red, stop.color.green, stop.color.blue));
    return {{"fit", id},
            {"start", jsonPoint(fit.focus)},
            {"end", jsonPoint(fit.centre)},
            {"startRadius", jsonNumber(fit.focusRadius)},
            {"endRadius", jsonNumber(fit.radius)},
            {"stops", std::move(stops)}};
}

Json printWindow(Session& session, Arguments&) {
    if (!session.hasWindow())
        return {{"window", nullptr}};
    const runtime::DrawingWindow& window = session.frontWindow();
    const drawing::Drawing& drawing = window.drawing();
    const runtime::SnapSwitches& snap = session.process().snap();
    return {{"window",
             {{"objects", objectsOf(drawing)},
              {"selection", selectionOf(drawing)},
              {"undoKind", optionalNumber(drawing.undoKind())},
              {"undoLevels", drawing.undoLevels()},
              {"redoLevels", drawing.redoLevels()},
              {"cursor", optionalNumber(window.cursor())},
              {"pickFilter", filterNames(session.process().pickFilter())},
              {"gridSnap", snap.grid == runtime::Switch::On},
              {"objectSnap", snap.object == runtime::Switch::On},
              {"beeps", session.user().beeps()},
              {"dirty", drawing.dirty()}}}};
}

Json printPalette(Session& session, Arguments&) {
    Json tools = Json::array();
    for (const HostTool& tool : session.process().palette().tools())
        tools.push_back(toolOf(tool));
    return {{"palette", std::move(tools)}};
}

} // namespace easel::play
