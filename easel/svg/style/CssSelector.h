// Selectors: which elements a rule of a style sheet is for.
#pragma once

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
};

// Names, .classes, #ids and [attributes] of one element.
struct CompoundSelector {
    struct AttributeTest {
        std::string name;
        std::string value;
        bool anyValue = false;
    };

    std::string element; // empty: any
    std::string id;
    std::vector<std::string> classes;
    std::vector<AttributeTest> attributes;

    bool matches(const SelectorSubject& subject) const;
};

enum class Combinator : std::uint8_t { Descendant, Child };

// Compounds from the right; `combinators[i]` stands between compounds i and i + 1.
struct Selector {
    std::vector<CompoundSelector> compounds;
    std::vector<Combinator> combinators;

    bool matches(const SelectorSubject& subject) const;
    // Larger is stronger: ids, then classes and attributes, then names.
    std::uint32_t specificity() const;
};

// Nothing for selectors of other kinds.
std::optional<Selector> parseSelector(std::string_view text);

} // namespace easel::svg
