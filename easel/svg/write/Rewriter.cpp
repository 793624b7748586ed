#include "easel/svg/write/Rewriter.h"

#include "easel/svg/style/Color.h"
#include "easel/svg/text/Number.h"
#include "easel/svg/text/Tags.h"
#include "easel/svg/write/ObjectText.h"
#include "easel/svg/write/RawTag.h"
#include "easel/svg/write/UseInstance.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace easel::svg {

using drawing::ElementSpan;
using drawing::Object;
using drawing::ObjectPtr;
using drawing::PaintOrigin;
using drawing::Snapshot;

namespace {

std::string lineBreakOf(const std::string& text) {
    const std::size_t first = text.find('\n');
    return first != std::string::npos && first > 0 && text[first - 1] == '\r' ? "\r\n" : "\n";
}

// All that the text refers to as "#id".
std::unordered_set<std::string> referencedIds(const std::string& text) {
    std::unordered_set<std::string> ids;
    for (std::size_t at = text.find('#'); at != std::string::npos; at = text.find('#', at + 1)) {
        const std::size_t end = text.find_first_of("\"')& \t\r\n", at);
        ids.insert(text.substr(at + 1, std::min(end, text.size()) - at - 1));
    }
    return ids;
}

// All names that stand in the text as they do in selectors of style sheets: "#id {", "#id.class".
IdSet idsInSelectors(const std::string& text) {
    IdSet ids;
    for (std::size_t at = text.find('#'); at != std::string::npos; at = text.find('#', at + 1)) {
        const std::size_t end = text.find_first_of("\"'()<;{,.:>+~[ \t\r\n", at);
        if (end != std::string::npos && std::string_view("\"'()<;").find(text[end]) == std::string_view::npos)
            ids.insert(text.substr(at + 1, end - at - 1));
    }
    return ids;
}

// Removes an element together with the blanks that set it on a line of its own.
void removeElement(Splices& splices, const std::string& text, std::size_t tag) {
    std::size_t begin = tag;
    while (begin > 0 && (text[begin - 1] == ' ' || text[begin - 1] == '\t'))
        --begin;
    const std::size_t end = elementEnd(text, tag);
    const bool ownLine = begin > 0 && text[begin - 1] == '\n' &&
                         (end == text.size() || text[end] == '\n' || text[end] == '\r');
    if (ownLine)
        begin -= begin > 1 && text[begin - 2] == '\r' ? 2 : 1;
    splices.replace(ownLine ? begin : tag, end, "");
}

StatementStrength strength(bool sheetsStateIt) {
    return sheetsStateIt ? StatementStrength::Style : StatementStrength::Attribute;
}

// A paint that the object has, with the opacity that is stated beside it. Nothing for one that cannot be said
// of one object.
void addPaint(std::vector<PaintStatement>& paints, std::string_view property, const Object& object,
              StatementStrength strength, GradientBlock& gradients) {
    const bool isFill = property == "fill";
    const drawing::Style& style = styleOf(object);
    const drawing::Paint& paint = isFill ? object.fill : style.stroke.paint;
    if (const drawing::Gradient* const gradient = drawing::gradientIn(paint)) {
        paints.push_back({property, gradients.addForeign(*gradient, object), strength});
    } else if (const auto* const color = std::get_if<drawing::ColorPaint>(&paint)) {
        paints.push_back({property, colorText(color->color), strength});
        const double around = isFill ? style.fillOpacity : style.stroke.opacity;
        if (color->opacity != 1)
            paints.push_back(
                {isFill ? "fill-opacity" : "stroke-opacity", numberText(color->opacity * around), strength});
    }
}

} // namespace

Rewriter::Rewriter(const Snapshot& drawing, const Source& source)
    : drawing_(drawing), source_(source), text_(source.text()), lineBreak_(lineBreakOf(text_)),
      gradients_(text_, source.prefix) {}

void Rewriter::gatherChanges() {
    std::vector<ElementSpan> present;
    std::vector<ObjectPtr> added;
    drawing_.forEach([&](const ObjectPtr& object) {
        if (object->source.inFile())
            present.push_back(object->source);
    });
    std::vector<ElementSpan> known = source_.objects.all();
    std::sort(known.begin(), known.end());
    std::sort(present.begin(), present.end());
    std::vector<ElementSpan> missing;
    std::set_difference(known.begin(), known.end(), present.begin(), present.end(),
                        std::back_inserter(missing));
    for (const ElementSpan& element : missing)
        addChange(element, {});

    std::set<ElementSpan> written;
    const bool repeated = std::adjacent_find(present.begin(), present.end()) != present.end();
    drawing_.forEach([&](const ObjectPtr& object) {
        // Of several copies of one object the first stays in its element and the others get elements of their
        // own.
        const bool isFirst = !repeated || written.insert(object->source).second;
        if (!object->source.inFile() || !isFirst)
            newObjects_.push_back(objectText(*object, source_.rootToDrawing, source_.prefix, gradients_));
        else if (auto paints = givenPaints(*object); !paints.empty())
            addChange(object->source, std::move(paints));
    });
    if (!source_.contextFills.empty() || !source_.contextStrokes.empty())
        keepContextPaints();
}

void Rewriter::keepContextPaints() {
    std::set<ElementSpan> seen;
    drawing_.forEach([&](const ObjectPtr& object) {
        const ElementSpan& element = object->source;
        if (!element.inFile() || !writtenOut_.contains(element.use) || !seen.insert(element).second)
            return;
        std::vector<PaintStatement> paints;
        if (object->fillOrigin != PaintOrigin::Edited && source_.contextFills.contains(element))
            addPaint(paints, "fill", *object, strength(source_.sheetsStateFill), gradients_);
        if (object->strokeOrigin != PaintOrigin::Edited && source_.contextStrokes.contains(element))
            addPaint(paints, "stroke", *object, strength(source_.sheetsStateStroke), gradients_);
        if (paints.empty())
            return;
        auto& changes = changes_[element.use];
        const auto known = std::find_if(changes.begin(), changes.end(),
                                        [&](const Change& change) { return change.tag == element.tagBegin; });
        if (known == changes.end())
            changes.push_back({element.tagBegin, std::move(paints)});
        else
            known->paints.insert(known->paints.end(), paints.begin(), paints.end());
    });
}

std::vector<PaintStatement> Rewriter::givenPaints(const Object& object) {
    std::vector<PaintStatement> paints;
    if (object.fillOrigin == PaintOrigin::Edited)
        if (std::string fill = fillText(object, gradients_); !fill.empty())
            paints.push_back({"fill", std::move(fill), strength(source_.sheetsStateFill)});
    if (object.strokeOrigin == PaintOrigin::Edited)
        paints.push_back({"stroke", strokeText(object, gradients_), strength(source_.sheetsStateStroke)});
    return paints;
}

void Rewriter::addChange(const ElementSpan& element, std::vector<PaintStatement> paints) {
    changes_[element.use].push_back({element.tagBegin, std::move(paints)});
    if (element.use == 0)
        keepCopiesOf(element.tagBegin);
    else
        writeOut(element.use);
}

void Rewriter::writeOut(std::uint32_t instance) {
    for (std::uint32_t inner = instance; inner != 0;) {
        const UseInstance& place = source_.useInstances[inner - 1];
        if (!writtenOut_.insert(inner).second)
            return;
        changedInside_[place.parent].push_back(inner);
        if (place.parent == 0)
            keepCopiesOf(place.useTag);
        inner = place.parent;
    }
}

void Rewriter::keepCopiesOf(std::uint32_t tag) {
    if (copies_.empty())
        gatherCopies();
    const auto [begin, end] = copies_.equal_range(tag);
    for (auto copy = begin; copy != end; ++copy)
        writeOut(copy->second);
}

void Rewriter::gatherCopies() {
    for (const ElementSpan& element : source_.objects.all())
        if (element.use != 0)
            copies_.emplace(element.tagBegin, element.use);
    for (const UseInstance& inner : source_.useInstances)
        if (inner.parent != 0)
            copies_.emplace(inner.useTag, inner.parent);
}

void Rewriter::applyChanges(std::uint32_t instance, Splices& splices) const {
    if (const auto found = changes_.find(instance); found != changes_.end()) {
        for (const Change& change : found->second) {
            if (change.paints.empty() && source_.chosen.contains(change.tag))
                // Without it the switch would show another of its elements.
                splices.replace(change.tag, elementEnd(text_, change.tag), '<' + source_.prefix + "g/>");
            else if (change.paints.empty())
                removeElement(splices, text_, change.tag);
            else
                statePaints(splices, RawTag(text_, change.tag), change.paints);
        }
    }
    if (const auto found = changedInside_.find(instance); found != changedInside_.end()) {
        for (const std::uint32_t inner : found->second) {
            const std::size_t use = source_.useInstances[inner - 1].useTag;
            splices.replace(use, elementEnd(text_, use), expanded(inner));
        }
    }
}

std::string Rewriter::expanded(std::uint32_t instance) const {
    const UseInstance& place = source_.useInstances[instance - 1];
    Splices splices;
    applyChanges(instance, splices);
    return writtenOut(text_, place, source_.prefix, idsInSheets_, splices);
}

std::string Rewriter::keptGradients(const std::string& newText) const {
    if (source_.ownBlock.empty())
        return {};
    const std::unordered_set<std::string> referenced = referencedIds(newText);
    std::string kept;
    const std::size_t end = contentEnd(text_, source_.ownBlock.begin);
    std::size_t at = text_.find('<', RawTag(text_, source_.ownBlock.begin).span().end);
    while (at < end) {
        const RawTag tag(text_, at);
        const std::size_t after = elementEnd(text_, at);
        if (referenced.contains(std::string(tag.value("id"))))
            kept += lineBreak_ + text_.substr(at, after - at);
        at = text_.find('<', after);
    }
    return kept;
}

void Rewriter::addBlock(Splices& splices) const {
    // The text without the block shows which of its old gradients are still needed.
    Splices outside = splices;
    outside.replace(source_.ownBlock.begin, source_.ownBlock.end, "");
    const std::string kept =
        source_.ownBlock.empty() ? "" : keptGradients(outside.applied(text_, 0, text_.size()));
    const std::string elements = kept + gradients_.text(lineBreak_);
    const std::string name = source_.prefix + "defs";
    const std::string block = '<' + name + ' ' + kOwnBlockAttribute + "=\"" + kOwnBlockValue + "\">" +
                              elements + lineBreak_ + "</" + name + '>';
    if (source_.ownBlock.empty() && !elements.empty())
        splices.insert(tagEnd(text_, source_.rootTag), lineBreak_ + block);
    else if (!source_.ownBlock.empty() && elements.empty())
        removeElement(splices, text_, source_.ownBlock.begin);
    else if (!source_.ownBlock.empty())
        splices.replace(source_.ownBlock.begin, source_.ownBlock.end, block);
}

void Rewriter::addNewObjects(Splices& splices) const {
    if (newObjects_.empty())
        return;
    std::string content;
    for (const std::string& object : newObjects_)
        content += object + lineBreak_;
    const RawTag root(text_, source_.rootTag);
    const std::size_t rootEnd = root.span().end;
    if (!root.closesItself()) {
        splices.insert(contentEnd(text_, source_.rootTag), content);
        return;
    }
    splices.insert(rootEnd, lineBreak_ + content + "</" + std::string(root.name()) + '>');
    splices.replace(rootEnd - 2, rootEnd, ">");
}

std::string Rewriter::rewritten() {
    gatherChanges();
    if (changes_.empty() && newObjects_.empty())
        return source_.bytes;
    if (!writtenOut_.empty() && (source_.sheetsStateFill || source_.sheetsStateStroke))
        idsInSheets_ = idsInSelectors(text_);
    Splices splices;
    applyChanges(0, splices);
    addBlock(splices);
    addNewObjects(splices);
    return splices.applied(text_, source_.bytes, source_.encoding);
}

} // namespace easel::svg
