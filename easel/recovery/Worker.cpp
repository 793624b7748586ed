// A queue between the threads.
#include "easel/recovery/Worker.h"

#include <future>
#include <utility>

namespace easel::recovery {

Worker::Worker() : thread_([this] { run(); }) {}

Worker::~Worker() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

void Worker::post(std::function<void()> work) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(work));
    }
    changed_.notify_one();
}

void Worker::finish() {
    std::promise<void> reached;
    post([&reached] { reached.set_value(); });
    reached.get_future().wait();
}

void Worker::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (waiting_.empty())
            return;
        {
            const std::function<void()> work = std::move(waiting_.front());
            waiting_.pop_front();
            lock.unlock();
            work();
        }
        lock.lock();
    }
}

} // namespace easel::recovery
