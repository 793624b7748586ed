// AppleDouble: the header file "._NAME" that holds type, creator and resource fork of the file NAME beside
// it.
#pragma once

#include "easel/classic/BigEndian.h"

#include <array>
#include <string>
#include <tl/expected.hpp>
#include <vector>

namespace easel::classic {

// What the desktop of old knew of a file: both are four-character codes.
struct FinderInfo {
    std::uint32_t type = 0;
    std::uint32_t creator = 0;

    bool operator==(const FinderInfo&) const = default;
};

enum class HeaderDamage {
    TooShort,
    NotAppleDouble, // the magic number is another
    UnknownVersion, // neither 1 nor 2
    EntryOutside,   // an entry does not lie within the file
    EntriesOverlap, // the entries together are larger than the file
};

// In words for the user.
std::string describe(HeaderDamage damage);

class AppleDouble {
  public:
    static constexpr std::uint32_t kVersion1 = 0x0001'0000;
    static constexpr std::uint32_t kVersion2 = 0x0002'0000;

    struct Entry {
        std::uint32_t id = 0;
        files::Bytes data;

        bool operator==(const Entry&) const = default;
    };

    // Takes both versions and entries in any order; entries it does not know are kept.
    static tl::expected<AppleDouble, HeaderDamage> read(ByteView bytes);
    // In the version that was read; a new one in version 2.
    files::Bytes write() const;

    std::uint32_t version() const { return version_; }
    const std::vector<Entry>& entries() const { return entries_; }
    // Zero codes where the file has none.
    FinderInfo finderInfo() const;
    void setFinderInfo(const FinderInfo& info);
    // Empty where the file has none.
    ByteView resourceFork() const;
    void setResourceFork(files::Bytes fork);

    bool operator==(const AppleDouble&) const = default;

  private:
    const Entry* find(std::uint32_t id) const;
    Entry& at(std::uint32_t id);

    std::uint32_t version_ = kVersion2;
    std::array<std::uint8_t, 16> filler_{}; // version 1 names the home file system here
    std::vector<Entry> entries_;
};

// What the beginning of a header file says about its Finder information: enough of the whole to list a
// folder by.
struct FinderInfoPlace {
    enum class Answer { Here, None, NotAppleDouble, ReadMore };
    Answer answer = Answer::NotAppleDouble;
    FinderInfo info;          // for Here
    std::uint64_t needed = 0; // for ReadMore: how many bytes of the beginning tell more
};
FinderInfoPlace findFinderInfo(ByteView beginning);

} // namespace easel::classic
