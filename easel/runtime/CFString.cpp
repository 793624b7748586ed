// Implements the counted string objects of host/Strings.h.
#include "easel/runtime/CFString.h"

#include "easel/classic/MacRoman.h"

struct __CFString {
    std::string text; // UTF-8
    mutable int references = 1;
};

struct __CFAllocator {};

namespace {

constexpr __CFAllocator kAllocator;

} // namespace

CFAllocatorRef const kCFAllocatorDefault = &kAllocator;

CFStringRef CFStringCreateWithPascalString(CFAllocatorRef, unsigned char const* bytes,
                                           CFStringEncoding encoding) {
    if (!bytes || encoding != kCFStringEncodingMacRoman)
        return nullptr;
    return new __CFString{easel::classic::fromMacRoman(CStr255::FromPascal(bytes).Text())};
}

CFStringRef CFRetain(CFStringRef string) {
    if (string)
        ++string->references;
    return string;
}

void CFRelease(CFStringRef string) {
    if (string && --string->references == 0)
        delete string;
}

namespace easel::runtime {

std::string utf8Of(CFStringRef string) {
    return string ? string->text : std::string();
}

} // namespace easel::runtime
