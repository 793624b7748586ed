// Records of files as the host interface has them, whose names are bytes behind their number.
#include "easel/runtime/HostSpec.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace easel::runtime {
namespace {

constexpr std::int16_t kVolume = -3;
constexpr std::int32_t kFolder = 0x01020304;

FSSpec recordWith(int count) {
    FSSpec record{};
    record.vRefNum = kVolume;
    record.parID = kFolder;
    std::fill(std::begin(record.name), std::end(record.name), std::uint8_t{'x'});
    record.name[0] = static_cast<std::uint8_t>(count);
    return record;
}

TEST(HostSpec, ANameHasAsManyBytesAsItsFirstByteSays) {
    EXPECT_EQ(fileSpecFrom(recordWith(0)), (classic::FileSpec{kVolume, kFolder, ""}));
    EXPECT_EQ(fileSpecFrom(recordWith(5)), (classic::FileSpec{kVolume, kFolder, "xxxxx"}));
}

TEST(HostSpec, ANameHas63BytesAtMostWhateverItsFirstByteSays) {
    for (const int count : {63, 64, 255})
        EXPECT_EQ(fileSpecFrom(recordWith(count)).name, std::string(63, 'x')) << count;
}

TEST(HostSpec, ARecordHoldsTheFirst63BytesOfAName) {
    const FSSpec five = hostSpecFrom({kVolume, kFolder, "abcde"});
    EXPECT_EQ(five.vRefNum, kVolume);
    EXPECT_EQ(std::int32_t{five.parID}, kFolder);
    EXPECT_EQ(std::string(std::begin(five.name), std::end(five.name)), "\5abcde" + std::string(58, '\0'));
    const std::string longest = std::string(62, 'x') + 'y';
    for (const char* more : {"", "z"}) {
        const FSSpec record = hostSpecFrom({kVolume, kFolder, longest + more});
        EXPECT_EQ(std::string(std::begin(record.name), std::end(record.name)), '\77' + longest);
    }
}

} // namespace
} // namespace easel::runtime
