// Work beside the window: in order, given up, and ended with the queue.
#include "easel/paint/pixels/WorkQueue.h"

#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <new>
#include <thread>
#include <utility>
#include <vector>

namespace {

using easel::paint::endIfUnwanted;
using easel::paint::GivenUp;
using easel::paint::Unwanted;
using easel::paint::WorkQueue;

WorkQueue::WorkPtr workOf(std::function<void(const Unwanted&)> run) {
    auto work = std::make_shared<WorkQueue::Work>();
    work->run = std::move(run);
    return work;
}

// Begins the work and says so, then waits until it may go on.
struct Gate {
    std::promise<void> begun;
    std::promise<void> open;

    WorkQueue::WorkPtr work() {
        return workOf([this](const Unwanted&) {
            begun.set_value();
            open.get_future().wait();
        });
    }
};

TEST(WorkQueue, DoesOneThingAfterTheOther) {
    std::vector<int> done;
    std::promise<void> last;
    WorkQueue queue;
    for (int i = 0; i < 5; ++i)
        queue.post(workOf([&done, i](const Unwanted&) { done.push_back(i); }));
    queue.post(workOf([&](const Unwanted&) { last.set_value(); }));
    last.get_future().wait();
    EXPECT_EQ(done, (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST(WorkQueue, GoesOnAfterWorkThatFoundNoMemory) {
    std::promise<void> last;
    WorkQueue queue;
    queue.post(workOf([](const Unwanted&) { throw std::bad_alloc(); }));
    queue.post(workOf([&](const Unwanted&) { last.set_value(); }));
    last.get_future().wait();
}

TEST(WorkQueue, NeverBeginsWhatWasGivenUp) {
    Gate gate;
    bool begun = false;
    std::promise<void> last;
    WorkQueue queue;
    queue.post(gate.work());
    const auto unwanted = workOf([&](const Unwanted&) { begun = true; });
    queue.post(unwanted);
    queue.post(workOf([&](const Unwanted&) { last.set_value(); }));
    queue.giveUp(unwanted);
    gate.open.set_value();
    last.get_future().wait();
    EXPECT_FALSE(begun);
}

TEST(WorkQueue, TellsWorkUnderWayThatNobodyWantsIt) {
    std::promise<void> begun;
    std::promise<void> ended;
    WorkQueue queue;
    const auto endless = workOf([&](const Unwanted& unwanted) {
        begun.set_value();
        try {
            for (;;)
                endIfUnwanted(&unwanted);
        } catch (const GivenUp&) {
            ended.set_value();
        }
    });
    queue.post(endless);
    begun.get_future().wait();
    queue.giveUp(endless);
    ended.get_future().wait();
}

TEST(WorkQueue, EndsWithAllThatIsUnderWayAndBeginsNothingMore) {
    std::promise<void> begun;
    bool ended = false;
    bool more = false;
    {
        WorkQueue queue;
        queue.post(workOf([&](const Unwanted& unwanted) {
            begun.set_value();
            while (!unwanted)
                std::this_thread::yield();
            ended = true;
        }));
        queue.post(workOf([&](const Unwanted&) { more = true; }));
        begun.get_future().wait();
    }
    EXPECT_TRUE(ended);
    EXPECT_FALSE(more);
}

TEST(WorkQueue, GivesWhatWorkHeldBackToWhoeverAsks) {
    struct Held {
        explicit Held(std::thread::id& thread) : destroyedBy(thread) {}
        std::thread::id& destroyedBy;
        ~Held() { destroyedBy = std::this_thread::get_id(); }
    };
    std::thread::id destroyedBy;
    std::promise<void> last;
    WorkQueue queue;
    queue.post(workOf([held = std::make_shared<Held>(destroyedBy)](const Unwanted&) {}));
    queue.post(workOf([&](const Unwanted&) { last.set_value(); }));
    last.get_future().wait();
    EXPECT_EQ(destroyedBy, std::thread::id());
    queue.takeEnded();
    EXPECT_EQ(destroyedBy, std::this_thread::get_id());
}

} // namespace
