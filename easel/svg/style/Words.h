// Properties whose values are words.
#pragma once

#include "easel/text/Ascii.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace easel::svg {

template <class Value> struct Word {
    std::string_view word;
    Value value;
};

// What a word stands for, whatever its case; nothing for a text that is none of them.
template <class Value, std::size_t count>
std::optional<Value> valueOf(std::string_view text, const Word<Value> (&words)[count]) {
    for (const Word<Value>& each : words)
        if (text::equalIgnoringCase(text, each.word))
            return each.value;
    return std::nullopt;
}

// Whatever the case.
inline bool isOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return text::equalIgnoringCase(text, word); });
}

} // namespace easel::svg
