// Reads patterns: what a pattern element holds, in the units of the pattern.
#include "easel/drawing/Pattern.h"
#include "easel/svg/read/PatternFrame.h"
#include "easel/svg/read/TreeReader.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace easel::svg {

namespace {

// Shapes in patterns may have patterns, which are read, and painted, by recursion.
constexpr std::size_t kDeepestPattern = 8;

bool samePlaces(const drawing::Pattern& one, const drawing::Pattern& other) {
    return one.objects == other.objects && one.cell == other.cell && one.toDrawing == other.toDrawing &&
           one.showsOverflow == other.showsOverflow;
}

// The nearest element of the chain that holds anything; none if none does.
pugi::xml_node contentOf(const ReferenceChain& chain) {
    for (const pugi::xml_node element : chain.elements())
        for (const pugi::xml_node child : element.children())
            if (child.type() == pugi::node_element)
                return element;
    return {};
}

} // namespace

drawing::Paint TreeReader::readPattern(pugi::xml_node pattern, const PaintPlace& at) {
    const ReferenceChain chain(scene_.tree, pattern, isPattern);
    if (chain.circular())
        scene_.notes.add(Unsupported::Circle);
    const auto frame = patternFrame(chain, at);
    const pugi::xml_node content = contentOf(chain);
    if (!frame || !content)
        return drawing::NoPaint();
    const bool circular =
        std::find(openPatterns_.begin(), openPatterns_.end(), content) != openPatterns_.end();
    if (circular || openPatterns_.size() == kDeepestPattern) {
        scene_.notes.add(circular ? Unsupported::Circle : Unsupported::DeepLayer);
        return drawing::NoPaint();
    }
    ReadPattern& known = patterns_[content];
    if (!known.objects || known.contentToOwn != frame->contentToOwn || known.width != frame->width ||
        known.height != frame->height)
        known = readPatternContent(content, *frame);
    if (known.objects->empty())
        return drawing::NoPaint();
    drawing::Pattern made{known.objects, frame->cell, at.toDrawing * frame->toShape, known.showsOverflow};
    if (!known.last || !samePlaces(*known.last, made))
        known.last = std::make_shared<const drawing::Pattern>(std::move(made));
    return known.last;
}

TreeReader::ReadPattern TreeReader::readPatternContent(pugi::xml_node content, const PatternFrame& frame) {
    Place inside = placeAround(content);
    const StatedStyle stated = scene_.cascade.of(content, inside.style.custom);
    inside.style = inside.style.inherited(stated, inside.lengths);
    inside.lengths.viewportWidth = frame.width;
    inside.lengths.viewportHeight = frame.height;
    inside.toDrawing = frame.contentToOwn;
    std::vector<drawing::ObjectPtr> objects;
    openPatterns_.push_back(content);
    readApart(content, {std::move(inside), nullptr}, objects);
    openPatterns_.pop_back();
    return {frame.contentToOwn,
            frame.width,
            frame.height,
            showsOverflow(stated),
            std::make_shared<const std::vector<drawing::ObjectPtr>>(std::move(objects)),
            nullptr};
}

} // namespace easel::svg
