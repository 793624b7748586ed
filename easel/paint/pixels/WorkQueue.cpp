#include "easel/paint/pixels/WorkQueue.h"

#include <new>
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
        waiting_.push_back(work);
    } catch (const std::system_error&) {
        return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
    changed_.notify_one();
    return true;
}

void WorkQueue::giveUp(const WorkPtr& work) {
    const std::lock_guard lock(mutex_);
    work->unwanted = true;
    waiting_.remove(work);
}

std::list<WorkQueue::WorkPtr> WorkQueue::takeEnded() {
    const std::lock_guard lock(mutex_);
    return std::exchange(ended_, {});
}

void WorkQueue::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (ending_)
            return;
        std::list<WorkPtr> next;
        next.splice(next.begin(), waiting_, waiting_.begin());
        running_ = next.front();
        Work& work = *running_;
        work.begun = true;
        lock.unlock();
        try {
            work.run(work.unwanted);
        } catch (const std::bad_alloc&) {
            // It ends here like work that nobody wants any more.
        }
        lock.lock();
        ended_.splice(ended_.end(), next);
        running_ = nullptr;
    }
}

} // namespace easel::paint
