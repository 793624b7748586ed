#include "easel/paint/pixels/WorkQueue.h"

#include <system_error>
#include <utility>

namespace easel::paint {

WorkQueue::~WorkQueue() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
        if (running_)
            running_->unwanted = true;
    }
    changed_.notify_one();
    if (thread_.joinable())
        thread_.join();
}

void WorkQueue::post(const WorkPtr& work) {
    if (!putOff(work))
        work->run(work->unwanted);
}

bool WorkQueue::putOff(const WorkPtr& work) {
    const std::lock_guard lock(mutex_);
    try {
        if (!thread_.joinable())
            thread_ = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        return false;
    }
    waiting_.push_back(work);
    changed_.notify_one();
    return true;
}

void WorkQueue::giveUp(const WorkPtr& work) {
    const std::lock_guard lock(mutex_);
    work->unwanted = true;
    std::erase(waiting_, work);
}

std::vector<WorkQueue::WorkPtr> WorkQueue::takeEnded() {
    const std::lock_guard lock(mutex_);
    return std::exchange(ended_, {});
}

void WorkQueue::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (ending_)
            return;
        running_ = waiting_.front();
        waiting_.pop_front();
        Work& work = *running_;
        work.begun = true;
        lock.unlock();
        work.run(work.unwanted);
        lock.lock();
        ended_.push_back(std::move(running_));
        running_ = nullptr;
    }
}

} // namespace easel::paint
