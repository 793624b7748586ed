// The counted pointer, with resources of the test's own.
#include "host/SharedResource.h"
#include "tests/support/FailingMemory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <new>
#include <random>
#include <set>

namespace {

// A resource that counts how many of it are alive.
class Probe {
  public:
    explicit Probe(std::uint32_t id) : id_(id) { ++alive; }
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;
    ~Probe() { --alive; }
    [[nodiscard]] std::uint32_t HashID() const { return id_; }

    static inline int alive = 0;

  private:
    std::uint32_t id_;
};

using ProbePtr = SharedResourcePtr<Probe>;

class SharedResource : public testing::Test {
  protected:
    // The table lives as long as the program, so every test takes ids that no other has used.
    std::uint32_t id_ = nextId_++;
    int aliveBefore_ = Probe::alive;

  private:
    static inline std::uint32_t nextId_ = 1000;
};

} // namespace

TEST_F(SharedResource, TheSecondOfTwoEqualResourcesIsDestroyedAtOnce) {
    const ProbePtr first(new Probe(id_));
    const ProbePtr second(new Probe(id_));
    EXPECT_EQ(Probe::alive, aliveBefore_ + 1);
}

TEST_F(SharedResource, TheHashAloneDecidesWhatIsEqual) {
    auto* const kept = new Probe(id_);
    const ProbePtr first(kept);
    const ProbePtr second(new Probe(id_));
    EXPECT_EQ(static_cast<const Probe*>(second), kept);
}

TEST_F(SharedResource, StaysInTheTableWhenTheLastPointerGoes) {
    {
        const ProbePtr first(new Probe(id_));
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is what is tested.
        const ProbePtr second(first);
        EXPECT_EQ(first.UseCount(), 3u);
    }
    EXPECT_EQ(Probe::alive, aliveBefore_ + 1);
    EXPECT_EQ(ProbePtr::GetTypeMap().at(id_).UseCount(), 1u);
}

TEST_F(SharedResource, NullGivesAnEmptyPointerWithoutACounter) {
    const long before = FailingMemory::LiveBlocks();
    {
        const ProbePtr empty(nullptr);
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is what is tested.
        const ProbePtr copy(empty);
        EXPECT_EQ(static_cast<const Probe*>(copy), nullptr);
        EXPECT_EQ(copy.operator->(), nullptr);
        EXPECT_EQ(copy.UseCount(), 0u);
        EXPECT_EQ(FailingMemory::LiveBlocks(), before);
    }
    EXPECT_EQ(FailingMemory::LiveBlocks(), before);
}

TEST_F(SharedResource, AssigningTheSameResourceChangesNoCount) {
    ProbePtr first(new Probe(id_));
    ProbePtr second(first);
    const ProbePtr& same = first;
    first = same;
    EXPECT_EQ(first.UseCount(), 3u);
    second = first;
    EXPECT_EQ(first.UseCount(), 3u);
}

TEST_F(SharedResource, AssigningAnEmptyPointerLeavesTheResourceToTheTable) {
    ProbePtr pointer(new Probe(id_));
    pointer = ProbePtr();
    EXPECT_EQ(static_cast<const Probe*>(pointer), nullptr);
    EXPECT_EQ(Probe::alive, aliveBefore_ + 1);
    EXPECT_EQ(ProbePtr::GetTypeMap().at(id_).UseCount(), 1u);
}

TEST_F(SharedResource, WithoutMemoryForTheCounterTheResourceIsDestroyedAndTheFailurePassedOn) {
    auto* const probe = new Probe(id_);
    {
        const FailingMemory failing(0);
        EXPECT_THROW(ProbePtr{probe}, std::bad_alloc);
    }
    EXPECT_EQ(Probe::alive, aliveBefore_);
    EXPECT_FALSE(ProbePtr::GetTypeMap().contains(id_));
}

// Whether the resource could be wrapped with memory for its counter alone, which it can while the table has
// room left.
bool WrapsWithoutRoomToGrow(Probe* probe) {
    const FailingMemory failing(1);
    try {
        const ProbePtr wrapped(probe);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

TEST_F(SharedResource, WithoutMemoryForTheTableEntryNothingLeaks) {
    constexpr std::uint32_t kFirstId = 1u << 24;
    constexpr std::uint32_t kMost = 1u << 20;
    for (std::uint32_t id = kFirstId; id < kFirstId + kMost; ++id) {
        const long before = FailingMemory::LiveBlocks();
        const long alive = Probe::alive;
        if (WrapsWithoutRoomToGrow(new Probe(id)))
            continue;
        EXPECT_EQ(Probe::alive, alive);
        EXPECT_FALSE(ProbePtr::GetTypeMap().contains(id));
        EXPECT_EQ(FailingMemory::LiveBlocks(), before);
        return;
    }
    FAIL() << "the table never had to grow";
}

TEST_F(SharedResource, CountsStayRightOverManyRandomOperations) {
    constexpr int kOperations = 100000;
    constexpr std::uint32_t kFirstId = 1u << 20;
    constexpr std::uint32_t kKinds = 40;
    std::mt19937 random(5);
    std::array<ProbePtr, 64> slots;
    std::array<std::uint32_t, 64> holds{}; // the id in each slot, 0 for an empty one
    std::set<std::uint32_t> everWrapped;
    const auto pick = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };

    for (int i = 0; i < kOperations; ++i) {
        std::size_t const to = pick(slots.size());
        std::size_t const from = pick(slots.size());
        switch (pick(4)) {
        case 0:
            holds[to] = kFirstId + static_cast<std::uint32_t>(pick(kKinds));
            everWrapped.insert(holds[to]);
            slots[to] = ProbePtr(new Probe(holds[to]));
            break;
        case 1:
            slots[to] = slots[from];
            holds[to] = holds[from];
            break;
        case 2:
            slots[to] = ProbePtr();
            holds[to] = 0;
            break;
        default: {
            const ProbePtr copy(slots[from]);
            // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is what is tested.
            const ProbePtr second(copy);
            slots[to] = second;
            holds[to] = holds[from];
            break;
        }
        }
        const auto users = static_cast<std::uint32_t>(std::count(holds.begin(), holds.end(), holds[to]));
        ASSERT_EQ(slots[to].UseCount(), holds[to] == 0 ? 0 : users + 1) << "after operation " << i;
    }
    slots.fill(ProbePtr());
    EXPECT_EQ(Probe::alive, aliveBefore_ + static_cast<int>(everWrapped.size()));
}
