// The plug-in's relocatable blocks of memory.
#include "easel/runtime/MemoryBlocks.h"
#include "tests/support/ErrorOf.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

#include <algorithm>
#include <limits>
#include <random>
#include <utility>
#include <vector>

using namespace easel::runtime;

namespace {

TEST(MemoryBlocks, ANewBlockHoldsItsSizeInZeroBytes) {
    MemoryBlocks blocks;
    char** const block = blocks.create(70);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(blocks.size(block), 70U);
    EXPECT_EQ(std::vector<char>(*block, *block + 70), std::vector<char>(70));
    EXPECT_TRUE(blocks.dispose(block));
    EXPECT_EQ(blocks.live(), 0U);
}

TEST(MemoryBlocks, AnEmptyBlockIsNotNullAndHasAnAddress) {
    MemoryBlocks blocks;
    char** const block = blocks.create(0);
    ASSERT_NE(block, nullptr);
    EXPECT_NE(*block, nullptr);
    EXPECT_EQ(blocks.size(block), 0U);
}

TEST(MemoryBlocks, ResizingKeepsTheBytes) {
    MemoryBlocks blocks;
    char** const block = blocks.create(3);
    std::memcpy(*block, "abc", 3);
    EXPECT_TRUE(blocks.resize(block, 100'000));
    EXPECT_EQ(std::memcmp(*block, "abc\0", 4), 0);
    EXPECT_TRUE(blocks.resize(block, 2));
    EXPECT_TRUE(blocks.resize(block, 3));
    EXPECT_EQ(std::memcmp(*block, "ab\0", 3), 0);
}

TEST(MemoryBlocks, AppendingKeepsTheBytesAndAddsOthers) {
    MemoryBlocks blocks;
    char** const block = blocks.create(0);
    EXPECT_TRUE(blocks.append(block, std::string("ab")));
    EXPECT_TRUE(blocks.append(block, {}));
    EXPECT_TRUE(blocks.append(block, std::string("cde")));
    EXPECT_EQ(blocks.size(block), 5U);
    EXPECT_EQ(std::memcmp(*block, "abcde", 5), 0);
    EXPECT_EQ(tests::errorOf(blocks.append(nullptr, {})), BlockError::NotABlock);
}

TEST(MemoryBlocks, ALockedBlockStaysInPlace) {
    MemoryBlocks blocks;
    char** const block = blocks.create(64);
    blocks.lock(block);
    const char* const place = *block;
    EXPECT_EQ(tests::errorOf(blocks.resize(block, 1 << 20)), BlockError::Locked);
    const std::string more(1 << 20, 'x');
    EXPECT_EQ(tests::errorOf(blocks.append(block, more)), BlockError::Locked);
    EXPECT_EQ(blocks.size(block), 64U);
    EXPECT_TRUE(blocks.resize(block, 10));
    EXPECT_EQ(*block, place);
    blocks.unlock(block);
    EXPECT_TRUE(blocks.resize(block, 1 << 20));
}

TEST(MemoryBlocks, WhatIsAppendedToALockedBlockFitsOrIsRefused) {
    for (const std::size_t size : {1U, 20U, 64U, 300U}) {
        MemoryBlocks blocks;
        char** const block = blocks.create(size);
        blocks.lock(block);
        const char* const place = *block;
        for (std::size_t more = 1; more <= size; ++more) {
            const auto before = *blocks.size(block);
            const bool appended = blocks.append(block, std::string(more, 'x')).has_value();
            EXPECT_EQ(*blocks.size(block), before + (appended ? more : 0));
            ASSERT_EQ(*block, place) << size << " and " << more;
        }
    }
}

TEST(MemoryBlocks, MisuseIsCaughtAndCounted) {
    MemoryBlocks blocks;
    char** const block = blocks.create(8);
    EXPECT_TRUE(blocks.dispose(block));
    EXPECT_EQ(tests::errorOf(blocks.dispose(block)), BlockError::NotABlock);
    EXPECT_EQ(tests::errorOf(blocks.lock(block)), BlockError::NotABlock);
    EXPECT_EQ(tests::errorOf(blocks.resize(nullptr, 1)), BlockError::NotABlock);
    char* stray = nullptr;
    EXPECT_EQ(blocks.size(&stray), std::nullopt);
    EXPECT_EQ(blocks.misuses(), 4U);
}

TEST(MemoryBlocks, AnImpossibleSizeIsRefusedAndTheBlockKept) {
    MemoryBlocks blocks;
    constexpr auto kTooLarge = std::numeric_limits<std::size_t>::max() / 2 + 1;
    EXPECT_EQ(blocks.create(kTooLarge), nullptr);
    char** const block = blocks.create(5);
    std::memcpy(*block, "hello", 5);
    EXPECT_EQ(tests::errorOf(blocks.resize(block, kTooLarge)), BlockError::NoMemory);
    EXPECT_EQ(std::memcmp(*block, "hello", 5), 0);
    EXPECT_EQ(blocks.live(), 1U);
}

TEST(MemoryBlocks, HundredThousandRandomOperationsLeaveEveryBlockIntact) {
    MemoryBlocks blocks;
    std::mt19937 random(1);
    std::vector<std::pair<char**, std::vector<char>>> expected;
    for (int step = 0; step < 100'000; ++step) {
        const auto size = random() % 300;
        if (expected.empty() || random() % 3 == 0) {
            expected.emplace_back(blocks.create(size), std::vector<char>(size));
        } else {
            const auto i = random() % expected.size();
            auto& [block, bytes] = expected[i];
            ASSERT_TRUE(std::equal(bytes.begin(), bytes.end(), *block));
            if (random() % 3 == 0) {
                blocks.dispose(block);
                expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(i));
            } else {
                blocks.resize(block, size);
                bytes.assign(size, static_cast<char>(step));
                std::memset(*block, static_cast<char>(step), size);
            }
        }
        ASSERT_EQ(blocks.live(), expected.size());
    }
}

} // namespace
