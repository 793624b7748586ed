#include "easel/svg/write/RawTag.h"

#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Tags.h"

#include <algorithm>

namespace easel::svg {

namespace {

bool endsName(char c) {
    return isSpace(c) || c == '=' || c == '/' || c == '>' || c == '"' || c == '\'';
}

} // namespace

RawTag::RawTag(std::string_view text, std::size_t begin)
    : text_(text), begin_(begin), end_(tagEnd(text, begin)), attributesEnd_(begin) {
    const auto nameEnd = [&](std::size_t at) {
        while (at < end_ && !endsName(text[at]))
            ++at;
        return at;
    };
    const auto skipSpaces = [&](std::size_t at) {
        while (at < end_ && isSpace(text[at]))
            ++at;
        return at;
    };
    std::size_t at = nameEnd(begin + 1);
    name_ = text.substr(begin + 1, at - begin - 1);
    attributesEnd_ = at;
    while (true) {
        const std::size_t from = at;
        const std::size_t nameBegin = skipSpaces(at);
        at = nameEnd(nameBegin);
        const std::string_view name = text.substr(nameBegin, at - nameBegin);
        at = skipSpaces(at);
        if (name.empty() || at >= end_ || text[at] != '=')
            return;
        at = skipSpaces(at + 1);
        if (at >= end_ || (text[at] != '"' && text[at] != '\''))
            return;
        const std::size_t close = std::min(text.find(text[at], at + 1), end_ - 1);
        attributes_.push_back({name, {at + 1, close}, {from, close + 1}});
        at = attributesEnd_ = close + 1;
    }
}

bool RawTag::closesItself() const {
    return svg::closesItself(text_, end_);
}

const RawAttribute* RawTag::find(std::string_view name) const {
    const auto found = std::find_if(attributes_.begin(), attributes_.end(),
                                    [name](const RawAttribute& attribute) { return attribute.name == name; });
    return found == attributes_.end() ? nullptr : &*found;
}

std::string_view RawTag::value(std::string_view name) const {
    const RawAttribute* const attribute = find(name);
    return attribute ? text_.substr(attribute->value.begin, attribute->value.end - attribute->value.begin)
                     : std::string_view();
}

} // namespace easel::svg
