#include "easel/svg/write/ReadBack.h"

#include "easel/drawing/ShapeGradient.h"
#include "easel/drawing/StandardGradient.h"
#include "easel/svg/Document.h"
#include "easel/svg/text/RecordText.h"
#include "easel/svg/text/Source.h"

#include <map>
#include <vector>

namespace easel::svg {

using drawing::ColorPaint;
using drawing::Drawing;
using drawing::ElementSpan;
using drawing::Gradient;
using drawing::NoPaint;
using drawing::Object;
using drawing::ObjectPtr;
using drawing::Paint;
using drawing::PaintOrigin;
using drawing::Snapshot;

namespace {

// The objects in the order of their elements in the file: those that keep theirs, then those that get one.
std::vector<ObjectPtr> inFileOrder(const Snapshot& drawing) {
    std::map<ElementSpan, ObjectPtr> kept;
    std::vector<ObjectPtr> added;
    drawing.forEach([&](const ObjectPtr& object) {
        const bool keeps = object->source.inFile() && kept.emplace(object->source, object).second;
        if (!keeps && !object->outline.empty())
            added.push_back(object);
    });
    std::vector<ObjectPtr> objects;
    if (const auto* const source = dynamic_cast<const Source*>(drawing.source.get()))
        for (const ElementSpan& element : source->objects.all())
            if (const auto found = kept.find(element); found != kept.end())
                objects.push_back(found->second);
    objects.insert(objects.end(), added.begin(), added.end());
    return objects;
}

// What a picture shows may lie in another file, which comes and goes: pictures are not compared.
std::vector<ObjectPtr> withoutPictures(std::vector<ObjectPtr> objects) {
    std::erase_if(objects, [](const ObjectPtr& object) { return object->kind == drawing::Kind::Picture; });
    return objects;
}

// Record and remainder as the text that stands for them to the bit; empty without a record.
std::string gradientText(const Object& object) {
    if (!object.showsGradient())
        return {};
    const drawing::Remainder none;
    const drawing::Remainder& remainder = object.remainder ? *object.remainder : none;
    return recordText(drawing::gradientIn(object.gradient)->GetGradientData()) + '|' +
           opacityText(remainder) + '|' + ellipseText(remainder);
}

bool sameFill(const Object& meant, const Object& read) {
    if (meant.showsGradient())
        return gradientText(meant) == gradientText(read);
    const Paint fill = drawing::plainFillOf(meant);
    const Paint readFill = read.showsGradient() ? Paint() : read.fill;
    if (std::holds_alternative<NoPaint>(fill))
        return std::holds_alternative<NoPaint>(read.fill) && !read.showsGradient();
    const auto* const color = std::get_if<ColorPaint>(&fill);
    const auto* const readColor = std::get_if<ColorPaint>(&readFill);
    return !color || (readColor && color->color == readColor->color);
}

bool sameStroke(const Object& meant, const Object& read) {
    const Paint& paint = styleOf(meant).stroke.paint;
    const Paint& readPaint = styleOf(read).stroke.paint;
    const Gradient* const gradient = drawing::gradientIn(paint);
    const Gradient* const readGradient = drawing::gradientIn(readPaint);
    return gradient && readGradient ? alike(*gradient, *readGradient) : paint == readPaint;
}

std::string nameOf(const Object& object, std::size_t number) {
    const std::string id(object.id.text());
    return id.empty() ? "object " + std::to_string(number) : "the object \"" + id + '"';
}

} // namespace

std::optional<std::string> lostIn(const std::string& bytes, const Snapshot& drawing) {
    const files::Result<Drawing> read = readBytes(bytes, {});
    if (!read)
        return "it could not be opened again: " + read.error().reason;
    std::vector<ObjectPtr> again;
    read->forEach([&](const ObjectPtr& object) { again.push_back(object); });
    again = withoutPictures(std::move(again));
    const std::vector<ObjectPtr> objects = withoutPictures(inFileOrder(drawing));
    if (again.size() != objects.size())
        return "it would hold " + std::to_string(again.size()) + " objects instead of " +
               std::to_string(objects.size());
    std::optional<std::string> lost;
    std::size_t at = 0;
    for (const ObjectPtr& readObject : again) {
        const Object& meant = *objects[at++];
        const bool isNew = !meant.source.inFile();
        const bool filled = meant.fillOrigin == PaintOrigin::Edited || isNew;
        if (!lost && filled && !sameFill(meant, *readObject))
            lost = "the fill of " + nameOf(meant, at) + " would not be read back as it is now";
        if (!lost && meant.strokeOrigin == PaintOrigin::Edited && !sameStroke(meant, *readObject))
            lost = "the stroke of " + nameOf(meant, at) + " would not be read back as it is now";
    }
    return lost;
}

} // namespace easel::svg
