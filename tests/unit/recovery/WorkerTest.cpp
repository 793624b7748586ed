#include "easel/recovery/Worker.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <vector>

using easel::recovery::Worker;

namespace {

TEST(Worker, DoesOneThingAfterTheOtherOnAnotherThread) {
    Worker worker;
    std::vector<int> done;
    std::thread::id thread;
    for (int i = 0; i < 3; ++i)
        worker.post([&, i] {
            std::this_thread::sleep_for(std::chrono::milliseconds(3 - i));
            done.push_back(i);
            thread = std::this_thread::get_id();
        });
    worker.finish();
    EXPECT_EQ(done, (std::vector<int>{0, 1, 2}));
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST(Worker, DoesWhatWasPostedBeforeItEnds) {
    bool done = false;
    {
        Worker worker;
        worker.post([] { std::this_thread::sleep_for(std::chrono::milliseconds(20)); });
        worker.post([&done] { done = true; });
    }
    EXPECT_TRUE(done);
}

} // namespace
