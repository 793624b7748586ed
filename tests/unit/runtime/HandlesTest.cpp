// Blocks of memory as a plug-in gets them: null and blocks that are none are allowed.
#include "host/Memory.h"
#include "tests/support/HostTest.h"

namespace tests {
namespace {

using HandlesTest = HostTest;

TEST_F(HandlesTest, OfNoSizeThatABlockCanHaveAreNull) {
    EXPECT_EQ(NewHandle(-1), nullptr);
    const Handle empty = NewHandle(0);
    ASSERT_NE(empty, nullptr);
    EXPECT_EQ(GetHandleSize(empty), 0);
    DisposeHandle(empty);
}

TEST_F(HandlesTest, NullIsNoMisuse) {
    DisposeHandle(nullptr);
    HLock(nullptr);
    HUnlock(nullptr);
    EXPECT_EQ(GetHandleSize(nullptr), 0);
    EXPECT_EQ(process_.blocks().misuses(), 0U);
}

TEST_F(HandlesTest, ABlockThatIsGoneHasNoSize) {
    const Handle block = NewHandle(4);
    EXPECT_EQ(GetHandleSize(block), 4);
    DisposeHandle(block);
    EXPECT_EQ(GetHandleSize(block), 0);
    EXPECT_FALSE(SetHandleSize(block, 8));
    EXPECT_EQ(process_.blocks().misuses(), 2U);
}

TEST_F(HandlesTest, ASizeBelowNoneChangesNothing) {
    const Handle block = NewHandle(4);
    EXPECT_FALSE(SetHandleSize(block, -1));
    EXPECT_EQ(GetHandleSize(block), 4);
    EXPECT_TRUE(SetHandleSize(block, 6));
    EXPECT_EQ(GetHandleSize(block), 6);
    DisposeHandle(block);
}

TEST_F(HandlesTest, ALockedBlockStaysWhereItIs) {
    const Handle block = NewHandle(4);
    HLock(block);
    EXPECT_FALSE(SetHandleSize(block, 1 << 20));
    EXPECT_EQ(GetHandleSize(block), 4);
    HUnlock(block);
    EXPECT_TRUE(SetHandleSize(block, 1 << 20));
    DisposeHandle(block);
}

} // namespace
} // namespace tests
