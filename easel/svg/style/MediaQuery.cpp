#include "easel/svg/style/MediaQuery.h"

#include "easel/svg/text/Length.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

namespace {

bool sizeHolds(std::string_view name, std::string_view value, const MediaSize& size) {
    const LengthContext lengths{size.width, size.height};
    const auto length = parseLength(value, lengths, Axis::Other);
    if (!length)
        return false;
    const auto is = [name](std::string_view other) { return equalIgnoringCase(name, other); };
    return (is("width") && size.width == *length) || (is("min-width") && size.width >= *length) ||
           (is("max-width") && size.width <= *length) || (is("height") && size.height == *length) ||
           (is("min-height") && size.height >= *length) || (is("max-height") && size.height <= *length);
}

// "name: value" or a name alone.
bool featureHolds(std::string_view feature, const MediaSize& size) {
    Scanner scanner(feature);
    const std::string_view name = trimmed(scanner.until(':'));
    const std::string_view value = trimmed(scanner.rest());
    const auto is = [name](std::string_view other) { return equalIgnoringCase(name, other); };
    if (is("orientation"))
        return equalIgnoringCase(value, size.width > size.height ? "landscape" : "portrait");
    if (is("prefers-color-scheme"))
        return equalIgnoringCase(value, "light");
    return (is("color") && value.empty()) || sizeHolds(name, value, size);
}

bool typeHolds(std::string_view type) {
    return equalIgnoringCase(type, "all") || equalIgnoringCase(type, "screen");
}

bool queryHolds(std::string_view query, const MediaSize& size) {
    Scanner scanner(trimmed(query));
    bool wanted = true;
    bool holds = true;
    while (!scanner.done()) {
        if (scanner.take('(')) {
            holds = featureHolds(scanner.until(')'), size) && holds;
        } else {
            const std::string_view word = scanner.word();
            if (word.empty())
                return false;
            if (equalIgnoringCase(word, "not"))
                wanted = false;
            else if (!equalIgnoringCase(word, "and") && !equalIgnoringCase(word, "only"))
                holds = typeHolds(word) && holds;
        }
        scanner.skipSpaces();
    }
    return holds == wanted;
}

} // namespace

bool mediaMatches(std::string_view queries, const MediaSize& size) {
    Scanner scanner(trimmed(queries));
    bool holds = scanner.done();
    while (!scanner.done() && !holds)
        holds = queryHolds(scanner.until(','), size);
    return holds;
}

} // namespace easel::svg
