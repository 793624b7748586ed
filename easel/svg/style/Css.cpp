#include "easel/svg/style/Css.h"

#include "easel/svg/style/CssIdentifier.h"
#include "easel/svg/style/CssText.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace easel::svg {

namespace {

constexpr int kDeepestBlock = 16;

// Takes a block, whose '{' is first, with everything inside it. One that is still open ends with the text.
std::string_view takeBlock(std::string_view& text) {
    int depth = 1;
    std::size_t end = 1;
    while (depth > 0) {
        end += lengthUntil(text.substr(end), "{}");
        if (end == text.size())
            return std::exchange(text, {}).substr(1);
        depth += text[end] == '{' ? 1 : -1;
        ++end;
    }
    const std::string_view block = text.substr(1, end - 2);
    text.remove_prefix(end);
    return block;
}

// One declaration's value without its mark of importance. Nothing if any other mark stands in it.
std::optional<Declaration> declaration(std::string_view name, std::string_view value) {
    Declaration result{trimmed(name), trimmed(value)};
    const bool marked = result.value.find('!') != std::string_view::npos;
    const std::size_t mark = marked ? lengthUntil(result.value, "!") : result.value.size();
    if (mark == result.value.size())
        return result;
    if (!equalIgnoringCase(trimmed(result.value.substr(mark + 1)), "important"))
        return std::nullopt;
    result.value = trimmed(result.value.substr(0, mark));
    result.importance = Importance::Important;
    return result;
}

} // namespace

std::string withoutComments(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const std::size_t begin = std::min(text.find("/*"), text.size());
        result += text.substr(0, begin);
        if (begin == text.size())
            break;
        const std::size_t end = text.find("*/", begin + 2);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 2);
        result += ' ';
    }
    for (const std::string_view mark : {"<!--", "-->"})
        for (std::size_t at = result.find(mark); at != std::string::npos; at = result.find(mark, at))
            result.replace(at, mark.size(), mark.size(), ' ');
    return result;
}

std::vector<Declaration> parseDeclarations(std::string_view text) {
    std::vector<Declaration> result;
    while (!text.empty()) {
        const std::size_t end = lengthUntil(text, ";");
        const std::string_view part = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        const std::size_t colon = part.find(':');
        if (colon == std::string_view::npos)
            continue;
        if (const auto one = declaration(part.substr(0, colon), part.substr(colon + 1)))
            result.push_back(*one);
    }
    return result;
}

void StyleSheet::add(const std::string& text, const MediaSize& media) {
    texts_.push_back(std::make_unique<const std::string>(withPlainNames(withoutComments(text))));
    addRules(*texts_.back(), media, 0);
}

void StyleSheet::addRules(std::string_view text, const MediaSize& media, int depth) {
    std::string_view rest = trimmed(text);
    while (!rest.empty()) {
        const std::size_t headLength = lengthUntil(rest, "{;");
        const std::string_view head = rest.substr(0, headLength);
        rest.remove_prefix(headLength);
        if (rest.empty())
            return;
        if (rest.front() == ';') {
            rest = trimmed(rest.substr(1));
            continue;
        }
        const std::string_view block = takeBlock(rest);
        rest = trimmed(rest);
        Scanner scanner(head);
        if (!scanner.take('@'))
            addRules(head, block);
        else if (scanner.takeWord("font-face") && trimmed(scanner.rest()).empty())
            fontFaces_.push_back(parseDeclarations(block));
        else if (depth < kDeepestBlock && scanner.takeWord("media") && mediaMatches(scanner.rest(), media))
            addRules(block, media, depth + 1);
    }
}

void StyleSheet::addRules(std::string_view selectors, std::string_view block) {
    const auto declarations = std::make_shared<const std::vector<Declaration>>(parseDeclarations(block));
    while (!selectors.empty()) {
        const std::size_t end = lengthUntil(selectors, ",");
        if (auto selector = parseSelector(selectors.substr(0, end)))
            addRule(std::move(*selector), declarations);
        selectors.remove_prefix(std::min(end + 1, selectors.size()));
    }
}

void StyleSheet::addRule(Selector selector, std::shared_ptr<const std::vector<Declaration>> declarations) {
    const CompoundSelector& last = selector.compounds.front();
    const std::size_t number = rules_.size();
    if (!last.id.empty())
        byId_[last.id].push_back(number);
    else if (!last.classes.empty())
        byClass_[last.classes.front()].push_back(number);
    else if (!last.element.empty())
        byElement_[last.element].push_back(number);
    else
        others_.push_back(number);
    rules_.push_back({std::move(selector), std::move(declarations)});
}

std::vector<Declaration> StyleSheet::declarationsFor(const SelectorSubject& subject) const {
    std::vector<std::size_t> candidates = others_;
    const auto addBucket = [&candidates](const Bucket& bucket, std::string_view key) {
        if (const auto found = bucket.find(std::string(key)); found != bucket.end())
            candidates.insert(candidates.end(), found->second.begin(), found->second.end());
    };
    addBucket(byElement_, subject.elementName());
    if (const char* const id = subject.attribute("id"))
        addBucket(byId_, id);
    if (const char* const classes = subject.attribute("class")) {
        std::string_view rest = trimmed(classes);
        while (!rest.empty()) {
            const auto* const end = std::find_if(rest.begin(), rest.end(), isSpace);
            const auto count = static_cast<std::size_t>(end - rest.begin());
            addBucket(byClass_, rest.substr(0, count));
            rest = trimmed(rest.substr(count));
        }
    }
    std::vector<std::tuple<std::uint32_t, std::size_t>> matching;
    for (const std::size_t number : candidates)
        if (rules_[number].selector.matches(subject))
            matching.emplace_back(rules_[number].selector.specificity(), number);
    std::sort(matching.begin(), matching.end());
    matching.erase(std::unique(matching.begin(), matching.end()), matching.end());
    std::vector<Declaration> result;
    for (const auto& [specificity, number] : matching)
        result.insert(result.end(), rules_[number].declarations->begin(), rules_[number].declarations->end());
    return result;
}

} // namespace easel::svg
