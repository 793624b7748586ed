// Reads masks: what a mask element holds, for each element that it masks.
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <utility>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;
using drawing::Mask;
using drawing::MaskMeasure;
using drawing::MaskPtr;

namespace {

// Masks are read, and painted, by recursion.
constexpr std::size_t kDeepestMask = 8;

bool isPlacedInBox(pugi::xml_node mask) {
    return std::string_view(mask.attribute("maskUnits").value()) != "userSpaceOnUse";
}
bool holdsSharesOfBox(pugi::xml_node mask) {
    return std::string_view(mask.attribute("maskContentUnits").value()) == "objectBoundingBox";
}

// In shares of the box or in lengths, as the element says. What is no length, and a side below 0, is as if it
// were not stated.
Box regionOf(pugi::xml_node mask, const LengthContext& lengths) {
    const bool shares = isPlacedInBox(mask);
    const auto parse = [&](std::string_view text, Axis axis) {
        const auto share = shares ? parseFraction(text) : std::nullopt;
        return share ? share : parseLength(text, lengths, axis);
    };
    const auto begin = [&](const char* name, Axis axis) {
        const auto stated = parse(mask.attribute(name).value(), axis);
        return stated ? *stated : parse("-10%", axis).value_or(0);
    };
    const auto side = [&](const char* name, Axis axis) {
        const auto stated = parse(mask.attribute(name).value(), axis);
        return stated && *stated >= 0 ? *stated : parse("120%", axis).value_or(0);
    };
    const double x = begin("x", Axis::Horizontal);
    const double y = begin("y", Axis::Vertical);
    return {x, y, x + side("width", Axis::Horizontal), y + side("height", Axis::Vertical)};
}

MaskMeasure measureOf(const StatedStyle& stated) {
    if (equalIgnoringCase(stated[Property::MaskType], "alpha"))
        return MaskMeasure::Alpha;
    return equalIgnoringCase(stated[Property::ColorInterpolation], "linearRGB") ? MaskMeasure::LinearLuminance
                                                                                : MaskMeasure::Luminance;
}

} // namespace

bool TreeReader::masksByBox(const StatedStyle& stated) const {
    const pugi::xml_node mask = scene_.tree.byId(localId(stated[Property::Mask]));
    return scene_.tree.svgName(mask) == "mask" && (isPlacedInBox(mask) || holdsSharesOfBox(mask));
}

MaskPtr TreeReader::maskFor(const StatedStyle& stated, const Box& box, const Place& place) {
    const std::string_view reference = stated[Property::Mask];
    if (reference.empty() || equalIgnoringCase(reference, "none"))
        return nullptr;
    const std::string_view id = localId(reference);
    if (id.empty()) {
        scene_.notes.add(reference.substr(0, 4) == "url(" ? Unsupported::External : Unsupported::Mask);
        return nullptr;
    }
    const pugi::xml_node element = scene_.tree.byId(id);
    if (scene_.tree.svgName(element) != "mask")
        return nullptr;
    const bool byBox = isPlacedInBox(element) || holdsSharesOfBox(element);
    if (byBox && box.empty())
        return nullptr;
    // Of a box without area, shares leave nothing to show.
    if (byBox && !(box.width() > 0 && box.height() > 0))
        return std::make_shared<const Mask>();
    if (std::find(openMasks_.begin(), openMasks_.end(), element) != openMasks_.end()) {
        scene_.notes.add(Unsupported::Circle);
        return nullptr;
    }
    if (openMasks_.size() == kDeepestMask) {
        scene_.notes.add(Unsupported::DeepLayer);
        return nullptr;
    }
    if (!byBox && openMasks_.empty() && lastMask_.isFor(element, place))
        return lastMask_.mask;
    scene_.budget.spend(1);
    openMasks_.push_back(element);
    MaskPtr mask = readMask(element, box, place);
    openMasks_.pop_back();
    // What leads in a circle reads differently from where the circle is entered.
    if (!byBox && openMasks_.empty() && !asksForBox(scene_.cascade.of(element)))
        lastMask_ = {element, place.toDrawing, place.lengths.viewportWidth, place.lengths.viewportHeight,
                     mask};
    return mask;
}

bool TreeReader::KnownMask::isFor(pugi::xml_node asked, const Place& place) const {
    return mask && element == asked && toDrawing == place.toDrawing &&
           viewportWidth == place.lengths.viewportWidth && viewportHeight == place.lengths.viewportHeight;
}

// What narrows the mask in turn is around its content: what is not there has neither luminance nor alpha.
MaskPtr TreeReader::readMask(pugi::xml_node element, const Box& box, const Place& place) {
    Place inside = placeAround(element);
    const StatedStyle stated = scene_.cascade.of(element, inside.style.custom);
    inside.style = inside.style.inherited(stated, inside.lengths);
    inside.lengths.viewportWidth = place.lengths.viewportWidth;
    inside.lengths.viewportHeight = place.lengths.viewportHeight;
    inside.toDrawing = place.toDrawing;
    auto mask = std::make_shared<Mask>();
    mask->measure = measureOf(stated);
    const Box region = regionOf(element, inside.lengths);
    if (!(region.width() > 0 && region.height() > 0))
        return mask;
    drawing::Group effects;
    effects.clip = clips_.clipFor(stated, box, inside);
    effects.mask = maskFor(stated, box, inside);
    addGroup(inside, std::move(effects));
    const Affine toUser = isPlacedInBox(element) ? boxUnits(box) : Affine();
    narrow(inside, rectangleClip(region, place.toDrawing * toUser));
    if (holdsSharesOfBox(element))
        inside.toDrawing = inside.toDrawing * boxUnits(box);
    readApart(element, {std::move(inside), nullptr}, mask->objects);
    return mask;
}

} // namespace easel::svg
