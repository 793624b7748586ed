// The host's constant string objects, as the interface names them.
#pragma once

#include "host/Strings.h"

#include <string>

struct __CFString {
    std::string text; // UTF-8
    mutable int references = 1;
};

// There is one way to allocate a string.
struct __CFAllocator {};

namespace easel::runtime {

// The object's text in UTF-8; empty for null.
inline std::string utf8Of(CFStringRef string) {
    return string ? string->text : std::string();
}

} // namespace easel::runtime
