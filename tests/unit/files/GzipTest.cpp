// Unpacking gzip against what the gzip program makes, and against damage.
#include "easel/files/Gzip.h"

#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>

namespace {

using easel::files::GzipFault;
using easel::files::isGzip;
using easel::files::packedGzip;
using easel::files::unpackedGzip;

constexpr std::uintmax_t kLimit = 1 << 20;

std::string fromHex(std::string_view digits) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        bytes += static_cast<char>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16));
    return bytes;
}

// printf 'hello hello hello\n' | gzip -9n
const std::string kHello = fromHex("1f8b0800000000000203cb48cdc9c957c840905c003b7c8adf12000000");

std::string textOf(const std::string& bytes, std::uintmax_t limit = kLimit) {
    const auto result = unpackedGzip(bytes, limit);
    EXPECT_TRUE(result);
    return result.value_or("");
}

GzipFault faultOf(const std::string& bytes, std::uintmax_t limit = kLimit) {
    return tests::errorOf(unpackedGzip(bytes, limit));
}

TEST(Gzip, UnpacksWhatTheGzipProgramPacked) {
    EXPECT_TRUE(isGzip(kHello));
    EXPECT_EQ(textOf(kHello), "hello hello hello\n");
}

TEST(Gzip, UnpacksMembersOneAfterTheOther) {
    EXPECT_EQ(textOf(kHello + kHello), "hello hello hello\nhello hello hello\n");
    EXPECT_EQ(textOf(kHello + std::string(512, '\0')), "hello hello hello\n");
}

TEST(Gzip, AFileThatIsCutOffAnywhereIsDamaged) {
    for (std::size_t size = 2; size < kHello.size(); ++size)
        EXPECT_EQ(faultOf(kHello.substr(0, size)), GzipFault::Damaged) << size;
}

TEST(Gzip, AChangedByteOrSomethingBehindIsDamage) {
    std::string changed = kHello;
    changed[changed.size() - 10] = static_cast<char>(changed[changed.size() - 10] ^ 1);
    EXPECT_EQ(faultOf(changed), GzipFault::Damaged);
    EXPECT_EQ(faultOf(kHello + "more"), GzipFault::Damaged);
}

TEST(Gzip, TheLimitIsThatOfTheUnpackedBytes) {
    const std::string packed = packedGzip(std::string(1 << 20, 'a'));
    EXPECT_LT(packed.size(), std::size_t{2000});
    EXPECT_EQ(textOf(packed).size(), std::size_t{1 << 20});
    EXPECT_EQ(faultOf(packed, kLimit - 1), GzipFault::TooLarge);
    EXPECT_EQ(faultOf(packed + packed), GzipFault::TooLarge);
}

TEST(Gzip, ASizeThatIsStatedWronglyIsNotBelieved) {
    std::string packed = packedGzip(std::string(100'000, 'a'));
    packed.replace(packed.size() - 4, 4, "\xff\xff\xff\xff");
    EXPECT_EQ(faultOf(packed), GzipFault::Damaged);
}

} // namespace
