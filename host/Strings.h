// Length-prefixed strings of the host, string lists and the formatting of numbers.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#pragma GCC visibility push(default)

/// The host's constant string object; counted, see CFRetain and CFRelease.
struct __CFString;
using CFStringRef = __CFString const*;

/// Common base of the length-prefixed strings: a length byte and that many bytes in the Mac Roman encoding.
///
/// A text longer than the capacity is cut to it. The host implements every member; none of them fails.
class CPString {
  public:
    /// Number of bytes in the string, 0 to Capacity().
    [[nodiscard]] std::size_t Length() const;
    /// Largest length that the string can take: 255 or 31.
    [[nodiscard]] std::size_t Capacity() const;
    /// The text followed by a zero byte; valid until the string is changed or destroyed.
    [[nodiscard]] char const* c_str() const;
    /// The length byte followed by the text; valid until the string is changed or destroyed.
    [[nodiscard]] unsigned char const* PascalBytes() const;
    /// The text without its length byte, still Mac Roman.
    [[nodiscard]] std::string Text() const;
    /// Replaces the text.
    void Assign(std::string_view text);
    /// Removes `count` bytes from byte `first` on, counting from 1; what lies beyond the end is ignored.
    void Delete(std::size_t first, std::size_t count);

    friend bool operator==(CPString const& a, CPString const& b) { return a.Text() == b.Text(); }

  protected:
    explicit CPString(unsigned char capacity);
    CPString(CPString const&) = default;
    /// Takes over the text only; the capacity stays what it was.
    CPString& operator=(CPString const& other);
    ~CPString() = default;

  private:
    unsigned char capacity_;
    // The length byte, up to 255 bytes of text and the zero byte behind them.
    unsigned char bytes_[257] = {};
};

/// A string of up to 255 bytes.
class CStr255 : public CPString {
  public:
    CStr255();
    // Texts are passed where strings are asked for, hence the implicit conversions.
    CStr255(char const* text);
    CStr255(std::string const& text);
    CStr255(CPString const& other);
    CStr255(CStr255 const&) = default;
    CStr255& operator=(CStr255 const&) = default;
    ~CStr255() = default;

    /// A string from a length-prefixed buffer.
    [[nodiscard]] static CStr255 FromPascal(unsigned char const* bytes);
    /// A new string object with the same text. The caller owns one reference to it.
    [[nodiscard]] CFStringRef CreateCopy() const;
};

/// A string of up to 31 bytes; a longer text is cut.
class CStr32 : public CPString {
  public:
    CStr32();
    explicit CStr32(CPString const& other);
    CStr32(CStr32 const&) = default;
    CStr32& operator=(CStr32 const&) = default;
    ~CStr32() = default;
};

/// Reads string `index` (from 1) of string list `listId` of the plug-in's resources; empty if there is no
/// such string. Asked for by message 1 already.
void GetIndString(CStr255& out, short listId, short index);
/// As above, by value.
[[nodiscard]] CStr255 GetIndString(short listId, short index);
/// As above, into a length-prefixed buffer of 256 bytes.
void GetIndString(unsigned char* out, short listId, short index);

/// Formats a number with exactly `precision` decimals and a decimal point, whatever the desktop's language
/// ("50.00").
void DoubleToStr(double value, short precision, CStr255& out);

/// Allocators of string objects; the plug-in only ever names the default one.
struct __CFAllocator;
using CFAllocatorRef = __CFAllocator const*;
extern CFAllocatorRef const kCFAllocatorDefault;

/// Encodings of text in bytes.
enum CFStringEncoding : unsigned int { kCFStringEncodingMacRoman = 0 };

/// A new string object from a length-prefixed buffer. The caller owns one reference to it. Null if the
/// encoding is unknown.
[[nodiscard]] CFStringRef CFStringCreateWithPascalString(CFAllocatorRef allocator, unsigned char const* bytes,
                                                         CFStringEncoding encoding);
/// Adds a reference to a string object and returns it.
CFStringRef CFRetain(CFStringRef string);
/// Gives up one reference; the last one frees the object. Null is allowed.
void CFRelease(CFStringRef string);

#pragma GCC visibility pop
