// Writes SVG: the objects in their groups, and before them the gradients, clip paths and masks they
// name.
#include "easel/export/SvgText.h"

#include "easel/export/GradientRange.h"
#include "easel/export/PictureElement.h"
#include "easel/export/TextElement.h"
#include "easel/paint/GroupRuns.h"
#include "easel/paint/Layer.h"
#include "easel/paint/ObjectPaintSource.h"
#include "easel/paint/ObjectPainter.h"
#include "easel/svg/style/Color.h"
#include "easel/svg/write/ElementText.h"
#include "easel/svg/write/GradientElement.h"
#include "easel/svg/write/PictureText.h"
#include "easel/svg/write/StyleText.h"

#include <algorithm>
#include <map>
#include <utility>

namespace easel::exports {

using drawing::Affine;
using drawing::Box;
using drawing::Object;
using svg::attribute;
using svg::attributeUnless;
using svg::pathText;
using svg::referenceTo;
using svg::transformAttribute;

namespace {

// Whether the outline cuts something off the picture; it is no larger than the picture.
bool showsInPart(const Object& object, const drawing::PlacedPicture& placed) {
    constexpr double kUnseen = 1e-6; // of a pixel
    const Box shown = object.outline.transformed(placed.toDrawing.inverse()).bounds();
    return shown.left > kUnseen || shown.top > kUnseen || shown.right < placed.picture->width() - kUnseen ||
           shown.bottom < placed.picture->height() - kUnseen;
}

class SvgWriter {
  public:
    // What filters show gets `fineness` pixels for each unit.
    SvgWriter(const drawing::Drawing& drawing, const Progress& progress, double fineness)
        : written_(progress, drawing.size()),
          fineness_(fineness), page_{0, 0, drawing.width(), drawing.height()} {
        drawing.forEach([&](const drawing::ObjectPtr& object) { objects_.push_back(object); });
        // Names of our own must not be those of objects.
        while (nameTaken())
            prefix_ += '-';
        writeWithin(nullptr, objects_);
    }

    std::string document(double width, double height, double scale) const {
        return svg::documentTag(width, height, scale) + "\n" +
               (definitions_.empty() ? "" : "<defs>\n" + definitions_ + "</defs>\n") + body_ + "</svg>\n";
    }

  private:
    bool nameTaken() const {
        for (const drawing::ObjectPtr& object : objects_)
            if (object->id.text().starts_with(prefix_))
                return true;
        return false;
    }
    std::string newName(std::string_view kind) {
        return prefix_ + std::string(kind) + std::to_string(++named_);
    }

    void writeWithin(const drawing::Group* parent, paint::ObjectSpan objects) {
        paint::forEachRun(
            parent, objects,
            [&](const drawing::Group& group, paint::ObjectSpan run) { writeGroup(group, run); },
            [&](const Object& object) { writeObject(object); });
    }
    void writeGroup(const drawing::Group& group, paint::ObjectSpan objects) {
        body_ += "<g" + attributeUnless(1, "opacity", drawing::validOpacity(group.opacity)) +
                 clipAttribute(group.clip.get()) + maskAttribute(group.mask.get()) +
                 attribute("style", blendText(group)) + ">\n";
        if (group.filter)
            writeFiltered(group, objects);
        else
            writeWithin(&group, objects);
        body_ += "</g>\n";
    }
    void writeFiltered(const drawing::Group& group, paint::ObjectSpan objects) {
        for (std::size_t i = 0; i < objects.size(); ++i)
            written_.next();
        const Affine toPixels = Affine::scaling(fineness_, fineness_);
        const auto picture = paint::ObjectPainter::filteredPicture(
            group, objects, toPixels, paint::pixelsUnder(page_, toPixels, paint::kAllPixels),
            filterPictures_);
        if (picture.pixels)
            body_ += pictureElement(*picture.pixels, picture.pixelsTo(toPixels.inverse())) + "\n";
    }

    void writeObject(const Object& object) {
        written_.next();
        const drawing::Style& style = drawing::styleOf(object);
        if (const auto* const picture = std::get_if<drawing::PicturePtr>(&object.fill);
            picture && object.kind == drawing::Kind::Picture)
            return writePicture(object, **picture);
        if (object.kind == drawing::Kind::Text && writeText(object))
            return;
        const Affine units = drawing::penUnitsOf(object);
        const bool stroked = drawing::strokes(style) && units.invertible();
        // Where it shows, the pen keeps the shape that the object's own units give it.
        const Affine own = stroked ? units : Affine{};
        const Affine toOwn = own.inverse();
        if (object.markers)
            body_ += "<g" + attributeUnless(1, "opacity", drawing::validOpacity(style.opacity)) + ">\n";
        body_ += "<path" + attribute("id", object.id.text()) + transformAttribute("transform", own);
        body_ +=
            attribute("d", pathText(own == Affine{} ? object.outline : object.outline.transformed(toOwn)));
        body_ += fillText(object, toOwn) + svg::ruleText("fill-rule", object.fillRule);
        if (stroked)
            body_ += strokeText(object, toOwn);
        body_ += svg::paintOrderText(style.first);
        if (!object.markers)
            body_ += attributeUnless(1, "opacity", drawing::validOpacity(style.opacity));
        body_ += "/>\n";
        if (object.markers) {
            writeWithin(nullptr, *object.markers);
            body_ += "</g>\n";
        }
    }
    // A faint fill alone is a faint text: pieces of it may lie over each other.
    static Object faintAsWhole(Object object) {
        drawing::Style style = drawing::styleOf(object);
        if (drawing::strokes(style))
            return object;
        style.opacity = drawing::validOpacity(style.opacity) * drawing::validOpacity(style.fillOpacity);
        style.fillOpacity = 1;
        if (auto* const color = std::get_if<drawing::ColorPaint>(&object.fill)) {
            style.opacity *= drawing::validOpacity(color->opacity);
            color->opacity = 1;
        }
        object.style = drawing::makeShared<const drawing::Style>(std::move(style));
        return object;
    }
    // False, with nothing written, if only its outline can say it. Of what is made of parts, only these show.
    bool writeText(const Object& shape) {
        const Object object = shape.markers ? shape : faintAsWhole(shape);
        const drawing::Style& style = drawing::styleOf(object);
        const bool isWhole =
            object.markers && object.fillPattern == drawing::FillPattern::None && !drawing::strokes(style);
        std::vector<TextElement> elements;
        if (!isWhole && !(style.text && textElements(object, elements)))
            return false;
        const std::string own = attribute("id", object.id.text()) +
                                attributeUnless(1, "opacity", drawing::validOpacity(style.opacity));
        const bool alone = elements.size() == 1 && !object.markers;
        if (!alone)
            body_ += "<g" + own + ">\n";
        for (const TextElement& element : elements) {
            const Affine toOwn = element.toDrawing.inverse();
            body_ += "<text" + (alone ? own : "") + element.attributes + fillText(object, toOwn);
            if (drawing::strokes(style))
                body_ += strokeText(object, toOwn);
            body_ += svg::paintOrderText(style.first) + ">" + element.content + "</text>\n";
        }
        if (object.markers)
            writeWithin(nullptr, *object.markers);
        if (!alone)
            body_ += "</g>\n";
        return true;
    }
    // What is cut off by its outline is hidden by a clip path of the same outline.
    void writePicture(const Object& object, const drawing::PlacedPicture& placed) {
        const drawing::Picture& picture = *placed.picture;
        const bool cut = showsInPart(object, placed);
        body_ += "<g" + attribute("id", object.id.text()) +
                 attributeUnless(1, "opacity", drawing::validOpacity(drawing::styleOf(object).opacity));
        if (cut)
            body_ += attribute("clip-path", referenceTo(outlineClip(object)));
        body_ += ">\n";
        const std::string place =
            transformAttribute("transform", placed.toDrawing) + svg::renderingText(placed);
        std::string& name = pictureNames_[&picture];
        if (name.empty()) {
            name = newName("picture");
            definitions_ += "<image" + attribute("id", name) + svg::pictureAttributes(picture) + "/>\n";
        }
        body_ += "<use" + attribute("href", '#' + name) + place + "/>\n</g>\n";
    }
    std::string outlineClip(const Object& object) {
        std::string name = newName("clip");
        definitions_ += "<clipPath" + attribute("id", name) + "><path" +
                        attribute("d", pathText(object.outline)) + "/></clipPath>\n";
        return name;
    }
    std::string fillText(const Object& object, const Affine& toOwn) {
        const paint::HeldPaintSource source = paint::HeldPaintSource::ofFill(object);
        if (!source.visible())
            return attribute("fill", "none");
        return heldText("fill", source, drawing::styleOf(object).fillOpacity, toOwn);
    }
    std::string strokeText(const Object& object, const Affine& toOwn) {
        const paint::HeldPaintSource source = paint::HeldPaintSource::ofStroke(object);
        if (!source.visible())
            return {};
        const drawing::Stroke& stroke = drawing::styleOf(object).stroke;
        return heldText("stroke", source, stroke.opacity, toOwn) +
               attributeUnless(1, "stroke-width", stroke.width) +
               svg::penText(stroke, svg::Defaults::LeftOut);
    }

    std::string heldText(const std::string& property, const paint::HeldPaintSource& held, double opacity,
                         const Affine& toOwn) {
        if (!held.pattern())
            return paintText(property, held.source(), opacity, toOwn);
        return attribute(property, referenceTo(patternName(*held.pattern(), toOwn))) +
               attributeUnless(1, property + "-opacity", drawing::validOpacity(opacity));
    }
    // Its content is written as if the cell began where its units do.
    std::string patternName(const drawing::Pattern& pattern, const Affine& toOwn) {
        const Affine toCell = Affine::translation(pattern.cell.left, pattern.cell.top);
        const std::string place = transformAttribute("patternTransform", toOwn * pattern.toDrawing * toCell);
        std::string& name = patternNames_[{&pattern, place}];
        if (!name.empty())
            return name;
        name = newName("pattern");
        std::string outside = std::exchange(body_, {});
        writeWithin(nullptr, *pattern.objects);
        const std::string content = std::exchange(body_, std::move(outside));
        definitions_ +=
            "<pattern" + attribute("id", name) + attribute("patternUnits", "userSpaceOnUse") +
            attribute("width", pattern.cell.width()) + attribute("height", pattern.cell.height()) + place +
            (pattern.showsOverflow ? attribute("overflow", "visible") : "") + "><g" +
            transformAttribute("transform", toCell.inverse()) + ">\n" + content + "</g></pattern>\n";
        return name;
    }

    std::string paintText(const std::string& property, const paint::PaintSource& source, double opacity,
                          const Affine& toOwn) {
        if (const auto* gradient = std::get_if<const drawing::Gradient*>(&source)) {
            const std::optional<drawing::RampStop> only = onlyColor(**gradient);
            if (only)
                return paintText(property, drawing::ColorPaint{only->color, only->opacity}, opacity, toOwn);
            return attribute(property, referenceTo(gradientName(withinUnitRange(**gradient), toOwn))) +
                   attributeUnless(1, property + "-opacity", drawing::validOpacity(opacity));
        }
        const auto& paint = std::get<drawing::ColorPaint>(source);
        return attribute(property, svg::colorText(paint.color)) +
               attributeUnless(1, property + "-opacity",
                               drawing::validOpacity(paint.opacity) * drawing::validOpacity(opacity));
    }
    // Gradients that come out alike are written once.
    std::string gradientName(const drawing::Gradient& gradient, const Affine& toOwn) {
        const std::string element(svg::gradientElementName(gradient.geometry));
        std::string text = attribute("gradientUnits", "userSpaceOnUse") +
                           svg::geometryText(gradient.geometry) + svg::spreadText(gradient.spread) +
                           transformAttribute("gradientTransform", toOwn * gradient.toDrawing) + ">";
        for (const drawing::RampStop& stop : gradient.ramp.stops())
            text += svg::stopText(stop);
        text += "</" + element + ">\n";
        std::string& name = gradientNames_[text];
        if (name.empty()) {
            name = newName("gradient");
            definitions_ += "<" + element + attribute("id", name) + text;
        }
        return name;
    }

    std::string clipAttribute(const drawing::ClipPath* clip) {
        return clip ? attribute("clip-path", referenceTo(clipName(*clip))) : std::string();
    }
    std::string clipName(const drawing::ClipPath& clip) {
        if (const auto known = clipNames_.find(&clip); known != clipNames_.end())
            return known->second;
        // Inner ones first: while their text is being made, ours must not be begun.
        std::string text = clipAttribute(clip.clip.get()) + ">\n";
        for (const drawing::ClipShape& shape : clip.shapes) {
            text += "<path" + attribute("d", pathText(shape.outline)) + clipAttribute(shape.clip.get()) +
                    svg::ruleText("clip-rule", shape.rule) + "/>\n";
        }
        const std::string name = newName("clip");
        definitions_ += "<clipPath" + attribute("id", name) + text + "</clipPath>\n";
        return clipNames_[&clip] = name;
    }

    static std::string blendText(const drawing::Group& group) {
        std::string text = group.isolated ? "isolation:isolate;" : "";
        if (group.blend != drawing::BlendMode::Normal)
            text += "mix-blend-mode:" + std::string(drawing::blendModeName(group.blend));
        return text;
    }

    std::string maskAttribute(const drawing::Mask* mask) {
        return mask ? attribute("mask", referenceTo(maskName(*mask))) : std::string();
    }
    std::string maskName(const drawing::Mask& mask) {
        if (const auto known = maskNames_.find(&mask); known != maskNames_.end())
            return known->second;
        const std::string outside = std::exchange(body_, {});
        writeWithin(nullptr, mask.objects);
        const std::string content = std::exchange(body_, outside);
        const std::string name = newName("mask");
        definitions_ += "<mask" + attribute("id", name) + attribute("maskUnits", "userSpaceOnUse") +
                        placeText(mask) + measureText(mask.measure) + ">\n" + content + "</mask>\n";
        return maskNames_[&mask] = name;
    }
    // All that the mask's objects may touch, with room for the blurred edges of pixels.
    static std::string placeText(const drawing::Mask& mask) {
        drawing::Box box;
        for (const drawing::ObjectPtr& object : mask.objects)
            box.add(object->paintBounds().grownBy(1));
        return attribute("x", box.empty() ? 0 : box.left) + attribute("y", box.empty() ? 0 : box.top) +
               attribute("width", box.width()) + attribute("height", box.height());
    }
    static std::string measureText(drawing::MaskMeasure measure) {
        if (measure == drawing::MaskMeasure::Alpha)
            return attribute("mask-type", "alpha");
        return measure == drawing::MaskMeasure::LinearLuminance
                   ? attribute("color-interpolation", "linearRGB")
                   : std::string();
    }

    PieceCount written_;
    double fineness_;
    drawing::Box page_;
    paint::FilterPictures filterPictures_;
    std::vector<drawing::ObjectPtr> objects_;
    std::string prefix_ = "easel-";
    int named_ = 0;
    std::map<std::string, std::string> gradientNames_;
    std::map<const drawing::Picture*, std::string> pictureNames_;
    std::map<std::pair<const drawing::Pattern*, std::string>, std::string> patternNames_;
    std::map<const drawing::ClipPath*, std::string> clipNames_;
    std::map<const drawing::Mask*, std::string> maskNames_;
    std::string definitions_;
    std::string body_;
};

} // namespace

std::string encodeSvg(const drawing::Drawing& drawing, double scale, const Progress& progress,
                      double dotsPerInch) {
    return SvgWriter(drawing, progress, scale * dotsPerInch / kInch)
        .document(drawing.width(), drawing.height(), scale);
}

} // namespace easel::exports
