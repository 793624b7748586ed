// The last index of an array held in a memory block.
#include "Gradient/TemplateUtil/LastDAIndex.h"
#include "Gradient/model/GradientBlock.h"
#include "host/Files.h"

#include <gtest/gtest.h>

namespace {

long LastIndexOfBytes(long size) {
    StOwnedBlock const block(NewHandle(size));
    return LastDAIndex(reinterpret_cast<FSSpec**>(block.get()));
}

} // namespace

TEST(LastDAIndex, CountsWholeRecordsOnly) {
    EXPECT_EQ(LastIndexOfBytes(140), 1);
    EXPECT_EQ(LastIndexOfBytes(139), 0);
    EXPECT_EQ(LastIndexOfBytes(69), -1);
}

TEST(LastDAIndex, OfAnEmptyBlockAndOfNoneIsBeforeTheFirst) {
    EXPECT_EQ(LastIndexOfBytes(0), -1);
    EXPECT_EQ(LastDAIndex<FSSpec>(nullptr), -1);
}
