#include "easel/svg/style/CustomProperties.h"

#include "easel/svg/style/CssIdentifier.h"
#include "easel/svg/text/ReadError.h"
#include "easel/svg/text/Scanner.h"

#include <optional>
#include <utility>

namespace easel::svg {

namespace {

constexpr std::size_t kMostElements = 1'000'000;
// Values asked for by values are replaced by recursion; these bounds also stop those that repeat each other
// without measure.
constexpr int kDeepest = 16;
constexpr std::size_t kMostReplacements = 200;
constexpr std::size_t kLongest = 4096;
constexpr std::size_t kMostScopes = 10'000;

constexpr std::string_view kFunction = "var(";

// Where the function next stands in the value, else the value's end. Path data, the longest values, have no
// brackets.
std::size_t findFunction(std::string_view value) {
    constexpr std::size_t kBefore = kFunction.size() - 1;
    for (std::size_t at = value.find('('); at != std::string_view::npos; at = value.find('(', at + 1))
        if (at >= kBefore && equalIgnoringCase(value.substr(at - kBefore, kFunction.size()), kFunction))
            return at - kBefore;
    return value.size();
}

const Declaration* find(const std::vector<Declaration>& own, std::string_view name) {
    const Declaration* found = nullptr;
    for (const Declaration& declaration : own)
        if (declaration.name == name && (!found || found->importance <= declaration.importance))
            found = &declaration;
    return found;
}

std::optional<std::string_view> valueOf(std::string_view name, const CustomProperties* properties) {
    std::size_t steps = 0;
    for (; properties && ++steps < kMostScopes; properties = properties->outer)
        if (const Declaration* const found = find(properties->own, name))
            return found->value;
    return std::nullopt;
}

// The length of the text up to the ')' that closes what was opened before it.
std::size_t lengthInBrackets(std::string_view text) {
    int depth = 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        depth += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        if (depth == 0)
            return i;
    }
    return text.size();
}

class Replacement {
  public:
    explicit Replacement(const CustomProperties* properties) : properties_(properties) {}

    bool append(std::string_view value, int depth) {
        while (true) {
            const std::size_t begin = findFunction(value);
            result_ += value.substr(0, begin);
            if (result_.size() > kLongest)
                return false;
            if (begin == value.size())
                return true;
            value.remove_prefix(begin + kFunction.size());
            const std::size_t count = lengthInBrackets(value);
            if (!appendAsked(value.substr(0, count), depth))
                return false;
            value.remove_prefix(std::min(count + 1, value.size()));
        }
    }
    std::string take() { return std::move(result_); }

  private:
    // "--name" or "--name, what stands for it where there is none".
    bool appendAsked(std::string_view asked, int depth) {
        if (depth == kDeepest || ++replacements_ > kMostReplacements)
            return false;
        const std::size_t comma = asked.find(',');
        const auto value = valueOf(trimmed(asked.substr(0, comma)), properties_);
        if (value)
            return append(*value, depth + 1);
        return comma != std::string_view::npos && append(trimmed(asked.substr(comma + 1)), depth + 1);
    }

    const CustomProperties* properties_;
    std::string result_;
    std::size_t replacements_ = 0;
};

} // namespace

bool isCustomProperty(std::string_view name) {
    return name.starts_with("--");
}

bool asksForCustomProperty(std::string_view value) {
    // Of each element most properties are not stated at all, or in a word.
    return value.size() > kFunction.size() && findFunction(value) != value.size();
}

const CustomProperties* CustomValues::add(const CustomProperties* outer, std::vector<Declaration> own) {
    if (properties_.size() == kMostElements)
        throw ReadError{Fault::TooComplex, "it states more custom properties than fit into memory"};
    return &properties_.emplace_back(CustomProperties{outer, std::move(own)});
}

std::string_view CustomValues::replaced(std::string_view value, const CustomProperties* properties) {
    Replacement replacement(properties);
    if (!replacement.append(value, 0))
        return {};
    return *values_.insert(replacement.take()).first;
}

std::string_view CustomValues::plain(std::string_view text) {
    if (text.find('\\') == std::string_view::npos && text.find("/*") == std::string_view::npos)
        return text;
    return *values_.insert(withPlainNames(withoutComments(text))).first;
}

} // namespace easel::svg
