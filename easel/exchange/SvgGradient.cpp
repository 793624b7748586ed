// Gradients in SVG files, by way of drawings.
#include "easel/exchange/SvgGradient.h"

#include "easel/svg/Document.h"

#include <cmath>
#include <numbers>
#include <pugixml.hpp>
#include <sstream>

namespace easel::exchange {
namespace {

using drawing::Gradient;
using drawing::Point;

constexpr double kSquareSize = 256;

// Where a point lies within a box, as fractions of its sides.
TPoint<double> fractionsOf(const drawing::Box& box, Point point) {
    const auto part = [](double value, double low, double high) {
        return high > low ? (value - low) / (high - low) : 0.5;
    };
    return {part(point.x, box.left, box.right), part(point.y, box.top, box.bottom)};
}

// The record nearest to a gradient that none can hold.
ImportedGradient nearest(const Gradient& foreign, const drawing::Object& object) {
    ImportedGradient result;
    auto& gradient = result.gradient;
    if (const auto* const line = std::get_if<drawing::LinearGeometry>(&foreign.geometry)) {
        const Point start = foreign.toDrawing(line->start);
        const Point end = foreign.toDrawing(line->end);
        gradient.SetType(kLinearGradient);
        gradient.SetAngle(
            static_cast<float>(std::atan2(end.y - start.y, end.x - start.x) * 180 / std::numbers::pi));
        result.notes.emplace_back("where it starts and ends is left out: it covers the whole shape");
    } else {
        const auto& circles = std::get<drawing::RadialGeometry>(foreign.geometry);
        gradient.SetType(kRadialGradient);
        gradient.SetStart(fractionsOf(object.bounds, foreign.toDrawing(circles.focus)));
        gradient.SetEnd(fractionsOf(object.bounds, foreign.toDrawing(circles.centre)));
        result.notes.emplace_back("its radii are left out: the circle reaches the farthest corner");
    }
    if (foreign.spread != drawing::Spread::Pad)
        result.notes.emplace_back("its repetition is left out");
    const bool faint = !foreign.ramp.opaque();
    gradient.ColorList().clear();
    for (const auto& stop : foreign.ramp.stops()) {
        gradient.ColorList().emplace_back(RGBColor{stop.color.red, stop.color.green, stop.color.blue},
                                          stop.position);
    }
    if (faint)
        result.notes.emplace_back("its opacity is left out: every color is opaque");
    return result;
}

std::optional<ImportedGradient> gradientOf(const drawing::Object& object) {
    if (const CGradient* const own = drawing::gradientIn(object.gradient))
        return ImportedGradient{own->GetGradientData(), object.id.text(), {}};
    if (const auto* const foreign = std::get_if<drawing::GradientPtr>(&object.fill)) {
        auto result = nearest(**foreign, object);
        result.name = object.id.text();
        return result;
    }
    return std::nullopt;
}

std::optional<ImportedGradient> firstGradientIn(const drawing::Drawing& drawing) {
    for (std::size_t i = 0; i < drawing.size(); ++i)
        if (auto found = gradientOf(*drawing.object(i)))
            return found;
    return std::nullopt;
}

bool isGradient(const pugi::xml_node& node) {
    const std::string_view name = node.name();
    const auto local = name.substr(name.find(':') + 1);
    return (local == "linearGradient" || local == "radialGradient") && node.attribute("id") &&
           (node.first_child() || node.attribute("href") || node.attribute("xlink:href"));
}

// Files that are made to pass gradients on hold nothing but gradients; the first one is put on a square.
std::optional<ImportedGradient> unusedGradientIn(const std::filesystem::path& file) {
    pugi::xml_document document;
    if (!document.load_file(file.c_str()))
        return std::nullopt;
    const auto gradient = document.find_node(isGradient);
    if (!gradient)
        return std::nullopt;
    auto square = document.document_element().append_child("rect");
    square.append_attribute("xmlns") = "http://www.w3.org/2000/svg";
    square.append_attribute("width") = kSquareSize;
    square.append_attribute("height") = kSquareSize;
    square.append_attribute("fill") = ("url(#" + std::string(gradient.attribute("id").value()) + ")").c_str();
    std::ostringstream text;
    document.save(text, "", pugi::format_raw);
    const auto read = svg::readBytes(text.str(), file.string());
    const auto* const drawing = std::get_if<drawing::Drawing>(&read);
    auto found = drawing ? firstGradientIn(*drawing) : std::nullopt;
    if (found) {
        found->name = gradient.attribute("id").value();
        found->notes.emplace_back("no shape has it; it is taken as a square of 256 units shows it");
    }
    return found;
}

} // namespace

ImportOutcome readSvg(const std::filesystem::path& file) {
    auto read = svg::readFile(file);
    if (const auto* const failure = std::get_if<svg::Failure>(&read)) {
        // The caller names the file.
        const auto prefix = file.string() + ": ";
        const auto& message = failure->message;
        return NoGradient{message.starts_with(prefix) ? message.substr(prefix.size()) : message};
    }
    if (auto found = firstGradientIn(std::get<drawing::Drawing>(read)))
        return std::move(*found);
    if (auto found = unusedGradientIn(file))
        return std::move(*found);
    return NoGradient{"there is no gradient in it"};
}

drawing::Drawing squareWith(const CGradientData& gradient, double size) {
    drawing::Path outline;
    outline.moveTo({0, 0});
    for (const Point corner : {Point{size, 0}, Point{size, size}, Point{0, size}})
        outline.lineTo(corner);
    outline.close();
    drawing::Object square;
    square.kind = drawing::Kind::Rect;
    square.id = "gradient";
    square.outline = std::move(outline);
    square.setFillPattern(drawing::FillPattern::SolidBlack);
    square.setGradient(drawing::ObjectGradient(std::make_unique<CGradient>(gradient).release()));
    auto result = drawing::Drawing::create(size, size);
    result.insert(0, drawing::sealed(std::move(square)));
    return result;
}

ExportedGradient writeSvg(const CGradientData& gradient) {
    return {svg::toBytes(squareWith(gradient, kSquareSize)), {}};
}

} // namespace easel::exchange
