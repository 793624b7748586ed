// Implements host/Strings.h.
#include "host/Strings.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/CFString.h"
#include "easel/runtime/Process.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

using easel::runtime::journal;
using easel::runtime::process;

namespace {

constexpr unsigned char kLongCapacity = 255;
constexpr unsigned char kShortCapacity = 31;

constexpr __CFAllocator kAllocator;

} // namespace

CPString::CPString(unsigned char capacity) : capacity_(capacity) {}

CPString& CPString::operator=(const CPString& other) {
    if (this != &other)
        Assign(other.Text());
    return *this;
}

std::size_t CPString::Length() const {
    return bytes_[0];
}

std::size_t CPString::Capacity() const {
    return capacity_;
}

const char* CPString::c_str() const {
    return reinterpret_cast<const char*>(bytes_ + 1);
}

const unsigned char* CPString::PascalBytes() const {
    return bytes_;
}

std::string CPString::Text() const {
    return {c_str(), Length()};
}

void CPString::Assign(std::string_view text) {
    const auto length = std::min<std::size_t>(text.size(), capacity_);
    // The text may be part of this very string.
    std::memmove(bytes_ + 1, text.data(), length);
    bytes_[0] = static_cast<unsigned char>(length);
    bytes_[length + 1] = 0;
}

void CPString::Delete(std::size_t first, std::size_t count) {
    if (first < 1 || first > Length())
        return;
    auto text = Text();
    text.erase(first - 1, count);
    Assign(text);
}

CStr255::CStr255() : CPString(kLongCapacity) {}

CStr255::CStr255(const char* text) : CPString(kLongCapacity) {
    Assign(text ? text : "");
}

CStr255::CStr255(const std::string& text) : CPString(kLongCapacity) {
    Assign(text);
}

CStr255::CStr255(const CPString& other) : CPString(kLongCapacity) {
    Assign(other.Text());
}

CStr255 CStr255::FromPascal(const unsigned char* bytes) {
    return std::string(reinterpret_cast<const char*>(bytes + 1), bytes[0]);
}

CFStringRef CStr255::CreateCopy() const {
    return CFStringCreateWithPascalString(kCFAllocatorDefault, PascalBytes(), kCFStringEncodingMacRoman);
}

CStr32::CStr32() : CPString(kShortCapacity) {}

CStr32::CStr32(const CPString& other) : CPString(kShortCapacity) {
    Assign(other.Text());
}

CStr255 GetIndString(short listId, short index) {
    journal("GetIndString", listId, index);
    // The reader of the resources has made sure that every text can be converted.
    return easel::classic::toMacRoman(process().plugin().resources().string(listId, index)).value_or("");
}

void GetIndString(CStr255& out, short listId, short index) {
    out = GetIndString(listId, index);
}

void GetIndString(unsigned char* out, short listId, short index) {
    const CStr255 text = GetIndString(listId, index);
    std::memcpy(out, text.PascalBytes(), text.Length() + 1);
}

void DoubleToStr(double value, short precision, CStr255& out) {
    // The largest double has 309 digits before the point. What is longer than a string is cut there.
    std::array<char, 512> text{};
    const int decimals = std::clamp<int>(precision, 0, 100);
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals).ptr;
    out.Assign({text.data(), static_cast<std::size_t>(end - text.data())});
}

const CFAllocatorRef kCFAllocatorDefault = &kAllocator;

CFStringRef CFStringCreateWithPascalString(CFAllocatorRef, const unsigned char* bytes,
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
