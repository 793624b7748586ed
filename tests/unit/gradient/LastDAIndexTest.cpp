// The last index of an array held in a memory block.
#include "Gradient/TemplateUtil/LastDAIndex.h"
#include "Gradient/model/GradientBlock.h"
#include "host/Files.h"
#include "tests/support/HostTest.h"

#include <gtest/gtest.h>

namespace {

long LastIndexOfBytes(long size) {
    const StOwnedBlock block(NewHandle(size));
    return LastDAIndex(reinterpret_cast<FSSpec**>(block.get()));
}

} // namespace

using LastDAIndexTest = tests::HostTest;

TEST_F(LastDAIndexTest, CountsWholeRecordsOnly) {
    EXPECT_EQ(LastIndexOfBytes(140), 1);
    EXPECT_EQ(LastIndexOfBytes(139), 0);
    EXPECT_EQ(LastIndexOfBytes(69), -1);
}

TEST_F(LastDAIndexTest, OfAnEmptyBlockAndOfNoneIsBeforeTheFirst) {
    EXPECT_EQ(LastIndexOfBytes(0), -1);
    EXPECT_EQ(LastDAIndex<FSSpec>(nullptr), -1);
}
