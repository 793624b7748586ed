#include "easel/svg/write/FillStatement.h"

#include "easel/svg/style/Css.h"

#include <array>
#include <utility>

namespace easel::svg {

namespace {

// The style with the characters that XML itself names put in for their references, followed by blanks so that
// everything stays in its place. References that are left may stand for whole declarations.
std::string withoutPlainReferences(std::string_view style) {
    static constexpr std::array<std::pair<std::string_view, char>, 5> kPlain = {
        {{"&quot;", '"'}, {"&apos;", '\''}, {"&#34;", '"'}, {"&#39;", '\''}, {"&amp;", '+'}}};
    std::string text(style);
    for (const auto& [reference, character] : kPlain)
        for (std::size_t at = text.find(reference); at != std::string::npos; at = text.find(reference, at))
            text.replace(at, reference.size(), std::string(1, character).append(reference.size() - 1, ' '));
    return text;
}

// The declaration that counts: the last important one, else the last.
const Declaration* strongestFill(const std::vector<Declaration>& declarations) {
    const Declaration* strongest = nullptr;
    for (const Declaration& declaration : declarations)
        if (declaration.name == "fill" && (!strongest || declaration.importance == Importance::Important ||
                                           strongest->importance == Importance::Normal))
            strongest = &declaration;
    return strongest;
}

// Of an attribute that is given twice the reader takes the last.
const RawAttribute* lastFill(const RawTag& tag) {
    const RawAttribute* last = nullptr;
    for (const RawAttribute& attribute : tag.attributes())
        if (attribute.name == "fill")
            last = &attribute;
    return last;
}

} // namespace

void stateFill(Splices& splices, const RawTag& tag, const std::string& fill, FillStatement statement) {
    const RawAttribute* const style = tag.find("style");
    const std::string styleText = withoutPlainReferences(tag.value("style"));
    const std::size_t lastReference = styleText.rfind('&');
    const bool hidden = lastReference != std::string::npos;
    const std::vector<Declaration> declarations = parseDeclarations(styleText);
    const Declaration* const stated = strongestFill(declarations);
    const std::size_t at = stated ? static_cast<std::size_t>(stated->value.data() - styleText.data()) : 0;
    const bool isStrong = stated && stated->importance == Importance::Important;
    if (stated && (!hidden || (isStrong && at > lastReference))) {
        const std::size_t begin = style->value.begin + at;
        const bool strengthen = statement == FillStatement::Style && !isStrong;
        splices.replace(begin, begin + stated->value.size(), strengthen ? fill + " !important" : fill);
    } else if (hidden) {
        // The reference may hold a fill, too, and its ';' ends no declaration; what comes after it counts.
        splices.insert(style->value.end, ";fill:" + fill + " !important");
    } else if (statement == FillStatement::Style && style) {
        // In front, so that nothing that the style leaves open takes it in.
        splices.insert(style->value.begin, "fill:" + fill + " !important;");
    } else if (statement == FillStatement::Style) {
        splices.insert(tag.attributesEnd(), " style=\"fill:" + fill + " !important\"");
    } else if (const RawAttribute* const attribute = lastFill(tag)) {
        splices.replace(attribute->value.begin, attribute->value.end, fill);
    } else {
        splices.insert(tag.attributesEnd(), " fill=\"" + fill + '"');
    }
}

} // namespace easel::svg
