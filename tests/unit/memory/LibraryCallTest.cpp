// Calls of libraries while memory is refused, to them or to others.
#include "easel/memory/LibraryCall.h"

#include "easel/memory/MemoryReserve.h"

#include <gtest/gtest.h>

#include <future>
#include <new>

namespace {

using namespace easel::memory;

constexpr int kPieces = 8;

TEST(LibraryCallTest, GivesWhatTheLibraryMadeIfItLackedNothing) {
    countRefusal();
    EXPECT_EQ(complete([] { return 7; }), 7) << "what was refused before does not matter";
}

TEST(LibraryCallTest, GivesNothingThatWasMadeWhileMemoryWasRefused) {
    const auto refusedMeanwhile = [] {
        countRefusal();
        return 7;
    };
    EXPECT_THROW(complete(refusedMeanwhile), std::bad_alloc);
}

TEST(LibraryCallTest, IsUnderWayOnItsThreadUntilTheOutermostCallHasEnded) {
    const auto isUnderWayElsewhere = [] {
        return std::async(std::launch::async, &LibraryCall::isUnderWayOnThisThread).get();
    };
    EXPECT_FALSE(LibraryCall::isUnderWay());
    {
        const LibraryCall outer;
        { const LibraryCall inner; }
        EXPECT_TRUE(LibraryCall::isUnderWayOnThisThread());
        EXPECT_TRUE(LibraryCall::isUnderWay());
        EXPECT_FALSE(isUnderWayElsewhere());
    }
    EXPECT_FALSE(LibraryCall::isUnderWayOnThisThread());
    EXPECT_FALSE(LibraryCall::isUnderWay());
}

// How many pieces the reserve gives to this thread.
int piecesGiven() {
    for (int pieces = 0;; ++pieces)
        try {
            std::get_new_handler()();
        } catch (const std::bad_alloc&) {
            return pieces;
        }
}

TEST(LibraryCallTest, IsServedOutOfTheReserveOnAnyThread) {
    const MemoryReserve reserve;
    const auto inLibrary = [] {
        const LibraryCall call;
        return piecesGiven();
    };
    EXPECT_EQ(std::async(std::launch::async, inLibrary).get(), kPieces);
}

TEST(LibraryCallTest, OtherThreadsHaveHalfOfTheReserve) {
    const MemoryReserve reserve;
    EXPECT_EQ(std::async(std::launch::async, &piecesGiven).get(), kPieces / 2);
    EXPECT_EQ(piecesGiven(), kPieces / 2) << "the other half is still there";
}

} // namespace
