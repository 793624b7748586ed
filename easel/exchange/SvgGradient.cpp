// Gradients in SVG files, by way of drawings.
#include "easel/exchange/SvgGradient.h"

#include "easel/drawing/ShapeGradient.h"
#include "easel/svg/Document.h"

#include <optional>
#include <pugixml.hpp>
#include <sstream>

namespace easel::exchange {
namespace {

using drawing::Point;

constexpr double kSquareSize = 256;

// What a record alone leaves out of a shape's gradient.
std::vector<std::string> notesOn(const drawing::ShapeGradient& gradient) {
    std::vector<std::string> notes;
    if (gradient.remainder && !gradient.remainder->opacity.empty())
        notes.emplace_back("its opacity is left out: every color is opaque");
    if (gradient.remainder && gradient.remainder->ellipse)
        notes.emplace_back("its ellipse is left out: it is circular");
    if (gradient.loss == drawing::Loss::Repeats)
        notes.emplace_back("its repetition is left out");
    if (gradient.loss == drawing::Loss::Focus)
        notes.emplace_back("its focus is moved into its circle");
    return notes;
}

std::optional<ImportedGradient> gradientOf(const drawing::Object& object) {
    const drawing::ShapeGradient held = drawing::shapeGradientOf(object);
    const CGradient* const record = drawing::gradientIn(held.record);
    if (!record)
        return std::nullopt;
    return ImportedGradient{record->GetGradientData(), object.id.text(), notesOn(held)};
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
    const auto read = svg::readBytes(text.str(), file);
    auto found = read ? firstGradientIn(*read) : std::nullopt;
    if (found) {
        found->name = gradient.attribute("id").value();
        found->notes.emplace_back("no shape has it; it is taken as a square of 256 units shows it");
    }
    return found;
}

} // namespace

files::Result<ImportedGradient> readSvg(const std::filesystem::path& file) {
    const auto read = svg::readFile(file);
    if (!read)
        return tl::unexpected(read.error());
    if (auto found = firstGradientIn(*read))
        return std::move(*found);
    if (auto found = unusedGradientIn(file))
        return std::move(*found);
    return tl::unexpected(files::Error{file, "there is no gradient in it", {}});
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
