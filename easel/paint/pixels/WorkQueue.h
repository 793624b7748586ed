// Work that nobody waits for, done one after the other on a thread that begins with the first of it.
#pragma once

#include <atomic>
#include <condition_variable>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <thread>

namespace easel::paint {

// Whether the work at hand may end early, since nobody wants what comes of it.
using Unwanted = std::atomic<bool>;

// What work throws that ended early.
struct GivenUp {};

inline void endIfUnwanted(const Unwanted* unwanted) {
    if (unwanted && *unwanted)
        throw GivenUp();
}

class WorkQueue {
  public:
    struct Work {
        std::function<void(const Unwanted& unwanted)> run; // may throw std::bad_alloc, and ends with it
        Unwanted unwanted = false;
        std::atomic<bool> begun = false;
    };
    using WorkPtr = std::shared_ptr<Work>;

    WorkQueue() = default;
    // Gives up all that is under way.
    ~WorkQueue();
    WorkQueue(const WorkQueue&) = delete;
    WorkQueue& operator=(const WorkQueue&) = delete;

    // Where no thread can be had, or no memory to remember the work, it is done here and now.
    void post(const WorkPtr& work);
    // The work ends early, or never begins.
    void giveUp(const WorkPtr& work);
    // What has ended, so that what it refers to is destroyed by the caller's thread and not by the queue's.
    std::list<WorkPtr> takeEnded();

  private:
    bool putOff(const WorkPtr& work);
    void run();

    std::mutex mutex_; // guards what follows
    std::condition_variable changed_;
    std::list<WorkPtr> waiting_;
    std::list<WorkPtr> ended_;
    bool ending_ = false;
    WorkPtr running_;
    std::thread thread_;
};

} // namespace easel::paint
