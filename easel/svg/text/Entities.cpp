#include "easel/svg/text/Entities.h"

#include "easel/svg/text/ReadError.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

namespace {

constexpr int kDeepestEntity = 16;
constexpr std::size_t kBaseBudget = 1 << 20;

// The internal subset of the document type: what stands between its square brackets.
std::string_view internalSubset(std::string_view text) {
    const std::size_t doctype = text.find("<!DOCTYPE");
    if (doctype == std::string_view::npos)
        return {};
    const std::string_view rest = text.substr(doctype);
    const std::size_t open = rest.find_first_of("[>");
    if (open == std::string_view::npos || rest[open] == '>')
        return {};
    const std::string_view inside = rest.substr(open + 1);
    return inside.substr(0, std::min(inside.find("]>"), inside.find("]\n")));
}

} // namespace

Entities::Entities(std::string_view text) : budget_(kBaseBudget + text.size()) {
    constexpr std::string_view kMark = "<!ENTITY";
    std::string_view subset = internalSubset(text);
    for (std::size_t at = subset.find(kMark); at != std::string_view::npos; at = subset.find(kMark)) {
        subset.remove_prefix(at + kMark.size());
        Scanner scanner(subset);
        scanner.skipSpaces();
        const std::string_view name = scanner.word();
        scanner.skipSpaces();
        const char quote = scanner.peek();
        if (!name.empty() && (scanner.take('"') || scanner.take('\'')))
            values_.emplace(name, scanner.until(quote));
        subset = scanner.rest();
    }
}

std::string Entities::expanded(std::string_view text) {
    std::string result;
    expandInto(result, text, 0);
    return result;
}

void Entities::expandInto(std::string& result, std::string_view text, int depth) {
    if (depth > kDeepestEntity)
        throw ReadError{Fault::NotXml, "it is not XML: an entity is defined by way of itself"};
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find('&'), text.size());
        result += text.substr(0, plain);
        // Counting one for each turn stops entities that repeat nothing without measure, too.
        if (plain + 1 > budget_)
            throw ReadError{Fault::TooComplex, "its entities expand without measure"};
        budget_ -= plain + 1;
        text.remove_prefix(plain);
        if (text.empty())
            return;
        Scanner scanner(text.substr(1));
        const auto value = values_.find(scanner.word());
        if (value != values_.end() && scanner.take(';')) {
            expandInto(result, value->second, depth + 1);
            text = scanner.rest();
        } else {
            result += '&';
            text.remove_prefix(1);
        }
    }
}

} // namespace easel::svg
