#include "easel/svg/write/UseInstance.h"

#include "easel/svg/text/Tags.h"
#include "easel/svg/write/RawTag.h"

#include <algorithm>
#include <array>

namespace easel::svg {

namespace {

bool isOneOf(std::string_view name, std::initializer_list<std::string_view> names) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::string_view textOf(const std::string& text, Span span) {
    return std::string_view(text).substr(span.begin, span.end - span.begin);
}

// The tag's attributes as they are written, but for some.
std::string attributesWithout(const std::string& text, const RawTag& tag,
                              std::initializer_list<std::string_view> left) {
    std::string result;
    for (const RawAttribute& attribute : tag.attributes())
        if (!isOneOf(attribute.name, left))
            result += textOf(text, attribute.whole);
    return result;
}

// The tag's attributes of these names.
std::string attributesOf(const std::string& text, const RawTag& tag,
                         std::initializer_list<std::string_view> names) {
    std::string result;
    for (const RawAttribute& attribute : tag.attributes())
        if (isOneOf(attribute.name, names))
            result += textOf(text, attribute.whole);
    return result;
}

// An id may stand in one place of a file only, and that is where it was. Where style sheets ask for it the
// copy would look different without.
void removeIds(const std::string& text, std::size_t begin, std::size_t end, const IdSet& kept,
               Splices& splices) {
    std::size_t at = begin;
    while ((at = text.find('<', at)) < end) {
        const RawTag tag(text, at);
        if (const RawAttribute* const id = tag.find("id"); id && !kept.contains(std::string(tag.value("id"))))
            splices.replace(id->whole.begin, id->whole.end, "");
        at = tag.span().end;
    }
}

} // namespace

std::string writtenOut(const std::string& text, const UseInstance& instance, const std::string& prefix,
                       const IdSet& idsInSheets, Splices& splices) {
    const RawTag use(text, instance.useTag);
    const RawTag target(text, instance.targetTag);
    const std::size_t targetEnd = elementEnd(text, instance.targetTag);
    // A second place of an id is harmless behind the first, which is what references find.
    const bool isBehind = instance.useTag > instance.targetTag;
    removeIds(text, instance.targetTag, targetEnd, isBehind ? idsInSheets : IdSet(), splices);
    const std::string group = prefix + "g";
    const std::string viewport = prefix + "svg";
    const std::string open =
        '<' + group + attributesWithout(text, use, {"href", "xlink:href", "x", "y", "width", "height"}) + '>';
    const std::string close = "</" + group + '>';

    const bool isSymbol = target.name() == prefix + "symbol";
    if (isSymbol || target.name() == viewport) {
        std::string tag = '<' + viewport + attributesOf(text, use, {"width", "height"});
        // The place of `use` moves all of it, and the size is that of `use` where it gives one.
        const bool width = use.find("width") != nullptr;
        const bool height = use.find("height") != nullptr;
        tag +=
            attributesWithout(text, target, {"id", width ? "width" : "id", height ? "height" : "id"}) + '>';
        const std::size_t contentBegin = target.span().end;
        const std::string content =
            target.closesItself() ? ""
                                  : splices.applied(text, contentBegin, contentEnd(text, instance.targetTag));
        const std::string place = attributesOf(text, use, {"x", "y"});
        return open + (place.empty() ? "" : '<' + viewport + place + " overflow=\"visible\">") + tag +
               content + "</" + viewport + '>' + (place.empty() ? "" : "</" + viewport + '>') + close;
    }
    const std::string copy = splices.applied(text, instance.targetTag, targetEnd);
    const std::string place = attributesOf(text, use, {"x", "y"});
    if (place.empty())
        return open + copy + close;
    return open + '<' + viewport + place + " overflow=\"visible\">" + copy + "</" + viewport + '>' + close;
}

} // namespace easel::svg
