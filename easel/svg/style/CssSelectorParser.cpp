// Reads selectors.
#include "easel/svg/style/CssIdentifier.h"
#include "easel/svg/style/CssSelector.h"
#include "easel/svg/style/CssText.h"
#include "easel/svg/text/Scanner.h"

#include <cmath>

namespace easel::svg {

namespace {

// Matching goes from compound to compound by recursion.
constexpr std::size_t kMostCompounds = 100;
constexpr double kFarthestPosition = 1e6;

AttributeMatch takeAttributeMatch(Scanner& scanner) {
    if (scanner.take('~'))
        return AttributeMatch::HasWord;
    if (scanner.take('|'))
        return AttributeMatch::BeginsWithPart;
    if (scanner.take('^'))
        return AttributeMatch::Begins;
    if (scanner.take('$'))
        return AttributeMatch::Ends;
    return scanner.take('*') ? AttributeMatch::Contains : AttributeMatch::Equals;
}

bool parseAttributeTest(Scanner& scanner, CompoundSelector& compound) {
    Scanner inside(scanner.until(']'));
    inside.skipSpaces();
    AttributeTest test;
    test.name = takeIdentifier(inside);
    // A prefix stands before a bar; in the file before a colon.
    if (inside.rest().size() > 1 && inside.peek() == '|' && inside.rest()[1] != '=') {
        inside.next();
        test.name += ':';
        test.name += takeIdentifier(inside);
    }
    inside.skipSpaces();
    if (!inside.done()) {
        test.match = takeAttributeMatch(inside);
        if (!inside.take('='))
            return false;
        test.value = unquoted(inside.rest());
    }
    compound.attributes.push_back(std::move(test));
    return !compound.attributes.back().name.empty();
}

std::optional<long> wholeNumber(Scanner& scanner) {
    const auto number = scanner.number();
    if (!number || std::floor(*number) != *number || std::abs(*number) > kFarthestPosition)
        return std::nullopt;
    return static_cast<long>(*number);
}

// "odd", "even", "3", "2n", "-n+4" and so on.
std::optional<PositionTest> parsePositions(std::string_view text) {
    if (equalIgnoringCase(text, "odd"))
        return PositionTest{2, 1};
    if (equalIgnoringCase(text, "even"))
        return PositionTest{2, 0};
    const std::size_t n = text.find_first_of("nN");
    Scanner offset(n == std::string_view::npos ? text : trimmed(text.substr(n + 1)));
    if (n == std::string_view::npos) {
        const auto number = wholeNumber(offset);
        return number && offset.done() ? std::optional(PositionTest{0, *number}) : std::nullopt;
    }
    PositionTest result;
    const std::string_view step = trimmed(text.substr(0, n));
    Scanner stepNumber(step);
    if (step.empty() || step == "+" || step == "-") {
        result.step = step == "-" ? -1 : 1;
    } else {
        const auto number = wholeNumber(stepNumber);
        if (!number || !stepNumber.done())
            return std::nullopt;
        result.step = *number;
    }
    if (offset.done())
        return result;
    const bool minus = offset.peek() == '-';
    if (!offset.take('+') && !offset.take('-'))
        return std::nullopt;
    offset.skipSpaces();
    const auto number = wholeNumber(offset);
    if (!number || !offset.done())
        return std::nullopt;
    result.offset = minus ? -*number : *number;
    return result;
}

enum class Inside : std::uint8_t { Nothing, Not };

std::optional<CompoundSelector> parseCompound(Scanner& scanner, Inside inside);

// The list in :not(); what it lists are single elements.
bool parseExcluded(Scanner& scanner, CompoundSelector& compound) {
    while (true) {
        scanner.skipSpaces();
        auto excluded = parseCompound(scanner, Inside::Not);
        if (!excluded)
            return false;
        compound.excluded.push_back(std::move(*excluded));
        scanner.skipSpaces();
        if (scanner.take(')'))
            return true;
        if (!scanner.take(','))
            return false;
    }
}

bool parsePseudoClass(Scanner& scanner, CompoundSelector& compound, Inside inside) {
    const std::string_view name = scanner.word();
    const auto is = [name](std::string_view other) { return equalIgnoringCase(name, other); };
    if (is("root"))
        compound.isRoot = true;
    else if (is("first-child"))
        compound.positions.push_back({0, 1});
    else if (is("last-child"))
        compound.isLast = true;
    else if (is("nth-child") && scanner.take('(')) {
        const auto positions = parsePositions(trimmed(scanner.until(')')));
        if (!positions)
            return false;
        compound.positions.push_back(*positions);
    } else if (is("not") && inside == Inside::Nothing && scanner.take('(')) {
        return parseExcluded(scanner, compound);
    } else
        return false;
    return true;
}

std::optional<CompoundSelector> parseCompound(Scanner& scanner, Inside inside) {
    CompoundSelector compound;
    const std::size_t before = scanner.rest().size();
    if (!scanner.take('*'))
        compound.element = takeIdentifier(scanner);
    while (true) {
        bool good = true;
        if (scanner.take('.')) {
            compound.classes.push_back(takeIdentifier(scanner));
            good = !compound.classes.back().empty();
        } else if (scanner.take('#')) {
            compound.id = takeIdentifier(scanner);
            good = !compound.id.empty();
        } else if (scanner.take('[')) {
            good = parseAttributeTest(scanner, compound);
        } else if (scanner.take(':')) {
            good = parsePseudoClass(scanner, compound, inside);
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

Combinator takeCombinator(Scanner& scanner) {
    if (scanner.take('>'))
        return Combinator::Child;
    if (scanner.take('+'))
        return Combinator::Next;
    return scanner.take('~') ? Combinator::Later : Combinator::Descendant;
}

} // namespace

std::optional<Selector> parseSelector(std::string_view text) {
    Scanner scanner(trimmed(text));
    Selector selector;
    while (selector.compounds.size() < kMostCompounds) {
        auto compound = parseCompound(scanner, Inside::Nothing);
        if (!compound)
            return std::nullopt;
        selector.compounds.insert(selector.compounds.begin(), std::move(*compound));
        if (scanner.done())
            return selector;
        scanner.skipSpaces();
        selector.combinators.insert(selector.combinators.begin(), takeCombinator(scanner));
        scanner.skipSpaces();
    }
    return std::nullopt;
}

} // namespace easel::svg
