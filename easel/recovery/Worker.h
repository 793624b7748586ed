// A thread that does one thing after the other, for work that the window does not wait for.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace easel::recovery {

class Worker {
  public:
    Worker();
    // Does first what was posted.
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    // The work must not throw. It is destroyed on the worker's thread.
    void post(std::function<void()> work);
    // Returns when all that was posted before is done.
    void finish();

  private:
    void run();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    bool ending_ = false;
    std::thread thread_;
};

} // namespace easel::recovery
