// host/Strings.h: length-prefixed strings, and the two texts that the plug-in asks for when it starts.
#include "host/Strings.h"

#include <algorithm>
#include <cstring>

CPString::CPString(unsigned char capacity) : capacity_(capacity) {}

CPString& CPString::operator=(CPString const& other) {
    if (this != &other) {
        Assign(other.Text());
    }
    return *this;
}

std::size_t CPString::Length() const {
    return bytes_[0];
}

std::string CPString::Text() const {
    return {reinterpret_cast<char const*>(bytes_ + 1), Length()};
}

void CPString::Assign(std::string_view text) {
    std::size_t const length = std::min<std::size_t>(text.size(), capacity_);
    std::memmove(bytes_ + 1, text.data(), length);
    bytes_[0] = static_cast<unsigned char>(length);
    bytes_[length + 1] = 0;
}

CStr255::CStr255() : CPString(255) {}

CStr255::CStr255(char const* text) : CPString(255) {
    Assign(text);
}

CStr255::CStr255(std::string const& text) : CPString(255) {
    Assign(text);
}

CStr32::CStr32() : CPString(31) {}

CStr32::CStr32(CPString const& other) : CPString(31) {
    Assign(other.Text());
}

void GetIndString(CStr255& out, short listId, short index) {
    bool const name = listId == 5000 && index == 1;
    bool const folder = listId == 5000 && index == 2;
    out = name ? "Gradient" : folder ? "Gradient Templates" : "";
}
