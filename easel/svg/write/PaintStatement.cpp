#include "easel/svg/write/PaintStatement.h"

#include "easel/svg/style/Css.h"
#include "easel/svg/style/CssIdentifier.h"
#include "easel/svg/text/Scanner.h"

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
const Declaration* strongest(const std::vector<Declaration>& declarations, std::string_view property) {
    const Declaration* strongest = nullptr;
    for (const Declaration& declaration : declarations)
        if (equalIgnoringCase(withPlainNames(declaration.name), property) &&
            (!strongest || declaration.importance == Importance::Important ||
             strongest->importance == Importance::Normal))
            strongest = &declaration;
    return strongest;
}

// Of an attribute that is given twice the reader takes the last.
const RawAttribute* lastAttribute(const RawTag& tag, std::string_view name) {
    const RawAttribute* last = nullptr;
    for (const RawAttribute& attribute : tag.attributes())
        if (attribute.name == name)
            last = &attribute;
    return last;
}

std::string important(const PaintStatement& statement) {
    return std::string(statement.property) + ':' + statement.paint + " !important";
}

// With blanks for its comments, so that all else keeps its place.
std::string withBlankComments(std::string text) {
    for (std::size_t at = text.find("/*"); at < text.size(); at = text.find("/*", at)) {
        const std::size_t close = text.find("*/", at + 2);
        const std::size_t end = close == std::string::npos ? text.size() : close + 2;
        text.replace(at, end - at, end - at, ' ');
    }
    return text;
}

// Declarations go in front, so that nothing that the style leaves open takes them in.
void beginStyle(Splices& splices, const RawTag& tag, const std::string& declarations) {
    if (const RawAttribute* const style = tag.find("style"))
        splices.insert(style->value.begin, declarations + ';');
    else
        splices.insert(tag.attributesEnd(), " style=\"" + declarations + '"');
}

} // namespace

void statePaints(Splices& splices, const RawTag& tag, const std::vector<PaintStatement>& paints) {
    const RawAttribute* const style = tag.find("style");
    const std::string styleText = withBlankComments(withoutPlainReferences(tag.value("style")));
    const std::size_t lastReference = styleText.rfind('&');
    const bool hidden = lastReference != std::string::npos;
    const std::vector<Declaration> declarations = parseDeclarations(styleText);
    std::string first;
    for (const PaintStatement& statement : paints) {
        const Declaration* const stated = strongest(declarations, statement.property);
        const std::size_t at = stated ? static_cast<std::size_t>(stated->value.data() - styleText.data()) : 0;
        const bool isStrong = stated && stated->importance == Importance::Important;
        if (stated && (!hidden || (isStrong && at > lastReference))) {
            const std::size_t begin = style->value.begin + at;
            const bool strengthen = statement.strength == StatementStrength::Style && !isStrong;
            splices.replace(begin, begin + stated->value.size(),
                            strengthen ? statement.paint + " !important" : statement.paint);
        } else if (hidden) {
            // The reference may hold such a paint, too, and its ';' ends no declaration; what comes after it
            // counts.
            splices.insert(style->value.end, ';' + important(statement));
        } else if (statement.strength == StatementStrength::Style) {
            first += (first.empty() ? "" : ";") + important(statement);
        } else if (const RawAttribute* const attribute = lastAttribute(tag, statement.property)) {
            splices.replace(attribute->value.begin, attribute->value.end, statement.paint);
        } else {
            splices.insert(tag.attributesEnd(),
                           ' ' + std::string(statement.property) + "=\"" + statement.paint + '"');
        }
    }
    if (!first.empty())
        beginStyle(splices, tag, first);
}

} // namespace easel::svg
