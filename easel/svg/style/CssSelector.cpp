// Which elements a selector matches, and how strong it is.
#include "easel/svg/style/CssSelector.h"

#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

namespace {

// How many ancestors and siblings one selector may look at; farther ones are as good as none. Without a
// bound, a sheet and a tree made for it would take for ever.
constexpr std::size_t kMostSteps = 500;

bool hasWord(std::string_view text, std::string_view wanted) {
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const auto* const end = std::find_if(text.begin(), text.end(), isSpace);
        const auto count = static_cast<std::size_t>(end - text.begin());
        if (text.substr(0, count) == wanted)
            return true;
        text.remove_prefix(count);
    }
    return false;
}

class Walk {
  public:
    explicit Walk(const Selector& selector) : selector_(selector) {}

    // Whether the compounds after the first `done` fit what is around the element that the last of those is.
    bool fits(const SelectorSubject& subject, std::size_t done) {
        if (done == selector_.compounds.size())
            return true;
        const Combinator combinator = selector_.combinators[done - 1];
        const bool up = combinator == Combinator::Descendant || combinator == Combinator::Child;
        const bool once = combinator == Combinator::Child || combinator == Combinator::Next;
        for (auto at = up ? subject.parent() : subject.previous(); at;
             at = up ? at->parent() : at->previous()) {
            if (++steps_ > kMostSteps)
                return false;
            if (selector_.compounds[done].matches(*at) && fits(*at, done + 1))
                return true;
            if (once)
                return false;
        }
        return false;
    }

  private:
    const Selector& selector_;
    std::size_t steps_ = 0;
};

} // namespace

bool AttributeTest::holdsFor(const SelectorSubject& subject) const {
    const char* const found = subject.attribute(name);
    if (!found)
        return false;
    const std::string_view text = found;
    switch (match) {
    case AttributeMatch::Exists:
        return true;
    case AttributeMatch::Equals:
        return text == value;
    case AttributeMatch::HasWord:
        return hasWord(text, value);
    case AttributeMatch::BeginsWithPart:
        return text.starts_with(value) && (text.size() == value.size() || text[value.size()] == '-');
    case AttributeMatch::Begins:
        return !value.empty() && text.starts_with(value);
    case AttributeMatch::Ends:
        return !value.empty() && text.ends_with(value);
    case AttributeMatch::Contains:
        return !value.empty() && text.find(value) != std::string_view::npos;
    }
    return false;
}

bool PositionTest::holdsFor(std::size_t position) const {
    const long beyond = static_cast<long>(position) - offset;
    return step == 0 ? beyond == 0 : beyond % step == 0 && beyond / step >= 0;
}

bool CompoundSelector::matches(const SelectorSubject& subject) const {
    if (!element.empty() && element != subject.elementName())
        return false;
    if (!id.empty()) {
        const char* const found = subject.attribute("id");
        if (!found || id != found)
            return false;
    }
    const char* const its = classes.empty() ? nullptr : subject.attribute("class");
    const auto has = [its](const std::string& name) { return its && hasWord(its, name); };
    const auto holds = [&](const AttributeTest& test) { return test.holdsFor(subject); };
    const auto stands = [&](const PositionTest& test) { return test.holdsFor(subject.position()); };
    const auto excludes = [&](const CompoundSelector& other) { return other.matches(subject); };
    return (!isRoot || !subject.parent()) && (!isLast || subject.isLast()) &&
           std::all_of(classes.begin(), classes.end(), has) &&
           std::all_of(attributes.begin(), attributes.end(), holds) &&
           std::all_of(positions.begin(), positions.end(), stands) &&
           std::none_of(excluded.begin(), excluded.end(), excludes);
}

std::uint32_t CompoundSelector::specificity() const {
    const std::size_t likeClasses =
        classes.size() + attributes.size() + positions.size() + (isRoot ? 1 : 0) + (isLast ? 1 : 0);
    std::uint32_t result = (id.empty() ? 0 : 1u << 20) + (static_cast<std::uint32_t>(likeClasses) << 10) +
                           (element.empty() ? 0 : 1);
    for (const CompoundSelector& other : excluded)
        result += other.specificity();
    return result;
}

bool Selector::matches(const SelectorSubject& subject) const {
    return compounds.front().matches(subject) && Walk(*this).fits(subject, 1);
}

std::uint32_t Selector::specificity() const {
    std::uint32_t result = 0;
    for (const CompoundSelector& compound : compounds)
        result += compound.specificity();
    return result;
}

} // namespace easel::svg
