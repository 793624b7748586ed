// Reads and matches selectors.
#include "easel/svg/style/CssSelector.h"

#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

namespace {

bool hasClass(const char* classes, const std::string& wanted) {
    Scanner scanner(classes ? classes : "");
    for (scanner.skipSpaces(); !scanner.done(); scanner.skipSpaces()) {
        const std::string_view rest = scanner.rest();
        const auto* const end = std::find_if(rest.begin(), rest.end(), isSpace);
        const auto count = static_cast<std::size_t>(end - rest.begin());
        if (rest.substr(0, count) == wanted)
            return true;
        scanner = Scanner(rest.substr(count));
    }
    return false;
}

bool parseAttributeTest(Scanner& scanner, CompoundSelector& compound) {
    Scanner inside(scanner.until(']'));
    inside.skipSpaces();
    CompoundSelector::AttributeTest test;
    test.name = inside.word();
    inside.skipSpaces();
    test.anyValue = inside.done();
    if (!test.anyValue) {
        if (!inside.take('='))
            return false;
        std::string_view value = trimmed(inside.rest());
        if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
            value.back() == value.front())
            value = value.substr(1, value.size() - 2);
        test.value = value;
    }
    compound.attributes.push_back(std::move(test));
    return !compound.attributes.back().name.empty();
}

std::optional<CompoundSelector> parseCompound(Scanner& scanner) {
    CompoundSelector compound;
    const std::size_t before = scanner.rest().size();
    if (!scanner.take('*'))
        compound.element = scanner.word();
    while (true) {
        bool good = true;
        if (scanner.take('.')) {
            compound.classes.emplace_back(scanner.word());
            good = !compound.classes.back().empty();
        } else if (scanner.take('#')) {
            compound.id = scanner.word();
            good = !compound.id.empty();
        } else if (scanner.take('[')) {
            good = parseAttributeTest(scanner, compound);
        } else {
            break;
        }
        if (!good)
            return std::nullopt;
    }
    if (scanner.rest().size() == before)
        return std::nullopt;
    return compound;
}

} // namespace

bool CompoundSelector::matches(const SelectorSubject& subject) const {
    if (!element.empty() && element != subject.elementName())
        return false;
    if (!id.empty()) {
        const char* const found = subject.attribute("id");
        if (!found || id != found)
            return false;
    }
    for (const std::string& name : classes)
        if (!hasClass(subject.attribute("class"), name))
            return false;
    return std::all_of(attributes.begin(), attributes.end(), [&subject](const AttributeTest& test) {
        const char* const found = subject.attribute(test.name);
        return found && (test.anyValue || test.value == found);
    });
}

bool Selector::matches(const SelectorSubject& subject) const {
    if (!compounds.front().matches(subject))
        return false;
    std::unique_ptr<SelectorSubject> at = subject.parent();
    for (std::size_t i = 1; i < compounds.size(); ++i) {
        // The nearest ancestor that fits is taken; sheets that need another one are not simple.
        if (combinators[i - 1] == Combinator::Descendant)
            while (at && !compounds[i].matches(*at))
                at = at->parent();
        if (!at || !compounds[i].matches(*at))
            return false;
        at = at->parent();
    }
    return true;
}

std::uint32_t Selector::specificity() const {
    std::uint32_t result = 0;
    for (const CompoundSelector& compound : compounds) {
        result += compound.id.empty() ? 0 : 1u << 20;
        result += static_cast<std::uint32_t>(compound.classes.size() + compound.attributes.size()) << 10;
        result += compound.element.empty() ? 0 : 1;
    }
    return result;
}

std::optional<Selector> parseSelector(std::string_view text) {
    Scanner scanner(trimmed(text));
    Selector selector;
    while (true) {
        const auto compound = parseCompound(scanner);
        if (!compound)
            return std::nullopt;
        selector.compounds.insert(selector.compounds.begin(), *compound);
        if (scanner.done())
            return selector;
        scanner.skipSpaces();
        const bool child = scanner.take('>');
        scanner.skipSpaces();
        selector.combinators.insert(selector.combinators.begin(),
                                    child ? Combinator::Child : Combinator::Descendant);
    }
}

} // namespace easel::svg
