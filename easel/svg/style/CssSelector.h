// Selectors: which elements a rule of a style sheet is for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace easel::svg {

// What a selector asks of an element.
class SelectorSubject {
  public:
    SelectorSubject() = default;
    SelectorSubject(const SelectorSubject&) = delete;
    SelectorSubject& operator=(const SelectorSubject&) = delete;
    virtual ~SelectorSubject() = default;

    virtual std::string_view elementName() const = 0;
    // Null if the element has no such attribute.
    virtual const char* attribute(const std::string& name) const = 0;
    // Null for the root.
    virtual std::unique_ptr<SelectorSubject> parent() const = 0;
    // The element before this one in the same parent; null for the first.
    virtual std::unique_ptr<SelectorSubject> previous() const = 0;
    // Among the elements of its parent, counted from 1.
    virtual std::size_t position() const = 0;
    virtual bool isLast() const = 0;
};

enum class AttributeMatch : std::uint8_t { Exists, Equals, HasWord, BeginsWithPart, Begins, Ends, Contains };

struct AttributeTest {
    std::string name;
    std::string value;
    AttributeMatch match = AttributeMatch::Exists;

    bool holdsFor(const SelectorSubject& subject) const;
};

// Positions step * n + offset, with n from 0.
struct PositionTest {
    long step = 0;
    long offset = 0;

    bool holdsFor(std::size_t position) const;
};

// What is asked of one element: its name, .classes, #ids, [attributes] and :pseudo-classes.
struct CompoundSelector {
    std::string element; // empty: any
    std::string id;
    std::vector<std::string> classes;
    std::vector<AttributeTest> attributes;
    std::vector<PositionTest> positions;
    std::vector<CompoundSelector> excluded; // what must not match
    bool isRoot = false;
    bool isLast = false;

    bool matches(const SelectorSubject& subject) const;
    // Larger is stronger: ids, then classes and the like, then names.
    std::uint32_t specificity() const;
};

enum class Combinator : std::uint8_t { Descendant, Child, Next, Later };

// Compounds from the right; `combinators[i]` stands between compounds i and i + 1.
struct Selector {
    std::vector<CompoundSelector> compounds;
    std::vector<Combinator> combinators;

    bool matches(const SelectorSubject& subject) const;
    std::uint32_t specificity() const;
};

// Nothing for selectors of other kinds.
std::optional<Selector> parseSelector(std::string_view text);

} // namespace easel::svg
