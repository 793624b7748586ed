// The C library's functions for memory, as libraries call them, where there is none.
#include "easel/memory/MemoryReserve.h"
#include "easel/memory/Refusals.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <malloc.h>

namespace {

using namespace easel::memory;

bool gHasMemory = true;

void* ifThereIsAny(std::size_t bytes) {
    return gHasMemory ? std::malloc(bytes) : nullptr;
}

// More than any machine has, which compilers are not to know.
volatile std::size_t gTooMuch = std::size_t{1} << 60;

TEST(AllocatorTest, CountsEveryRefusalAndSaysThatMemoryEnded) {
    const std::size_t before = refusals();
    void* block = nullptr;
    errno = 0;
    EXPECT_EQ(std::malloc(gTooMuch), nullptr);
    EXPECT_EQ(errno, ENOMEM);
    EXPECT_EQ(std::calloc(gTooMuch, 1), nullptr);
    EXPECT_EQ(memalign(64, gTooMuch), nullptr);
    EXPECT_EQ(posix_memalign(&block, 64, gTooMuch), ENOMEM);
    EXPECT_EQ(refusals(), before + 4);
}

TEST(AllocatorTest, CountsNothingWhereMemoryIsGiven) {
    const std::size_t before = refusals();
    void* block = nullptr;
    ASSERT_EQ(posix_memalign(&block, 4096, 100), 0);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % 4096, 0U);
    std::free(block);
    EXPECT_EQ(posix_memalign(&block, 3, 100), EINVAL) << "no such alignment";
    std::free(std::realloc(std::calloc(3, 5), 100));
    EXPECT_EQ(refusals(), before);
}

TEST(AllocatorTest, ABlockThatCannotGrowStays) {
    // Compilers take a block that was to grow for gone.
    char* volatile block = static_cast<char*>(std::malloc(6));
    std::strcpy(block, "whole");
    EXPECT_EQ(std::realloc(block, gTooMuch), nullptr);
    EXPECT_STREQ(block, "whole");
    std::free(block);
}

TEST(AllocatorTest, AsksTheReserveAsNewDoes) {
    const MemoryReserve reserve(ifThereIsAny);
    EXPECT_TRUE(memoryIsLeft());
    gHasMemory = false;
    EXPECT_EQ(std::malloc(gTooMuch), nullptr) << "and ends when all of the reserve was not enough";
    EXPECT_FALSE(memoryIsLeft());
    gHasMemory = true;
}

} // namespace
