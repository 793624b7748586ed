// Waiting in the middle of a call while events go on being handled, and giving that up.
#pragma once

#include <QObject>

#include <chrono>
#include <optional>

namespace easel::window {

// All waits of the program are nested in one another, so they are given up together. There is one of these.
class Waiting : public QObject {
    Q_OBJECT

  public:
    // Lives while something runs that may wait for the user: a callback of the plug-in, or a dialog. Calls
    // nest only through the dialogs that they open.
    class Call {
      public:
        explicit Call(Waiting& waiting);
        ~Call();
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

      private:
        Waiting& waiting_;
    };
    bool busy() const { return calls_ > 0; }

    // Ends whatever is waited for, as if the user had cancelled it; `becameIdle` follows if a call runs, and
    // without one this does nothing. Until then every wait ends at once.
    void cancelAll();
    bool cancelled() const { return cancelled_; }

    // Returns after some events have been handled, or after the time is over.
    void sleep(std::optional<std::chrono::milliseconds> atMost = {});
    // Sleeps until the condition holds or all is cancelled.
    template <class Condition> void sleepUntil(Condition condition) {
        while (!condition() && !cancelled_)
            sleep();
    }

  Q_SIGNALS:
    // The last call is over.
    void becameIdle();

  private:
    int calls_ = 0;
    bool cancelled_ = false;
};

} // namespace easel::window
