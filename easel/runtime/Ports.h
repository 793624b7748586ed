// Where drawing calls go, and how that is kept from outliving its port.
#pragma once

#include "easel/paint/Port.h"

#include <vector>

namespace easel::runtime {

// The ports that can be current announce themselves, since the plug-in saves and restores the current port
// around dialogs that may be gone by then. None of them is owned.
class Ports {
  public:
    void add(paint::Port& port) { all_.push_back(&port); }
    // To be called before a port is destroyed. If it is the current one, none is.
    void forget(const paint::Port& port);
    bool has(const paint::Port* port) const;

    // Makes a port current if it is among these, and none otherwise.
    void makeCurrent(paint::Port* port) { current_ = has(port) ? port : nullptr; }
    // The current port, or null.
    paint::Port* current() const { return current_; }
    // The current port; while there is none, a port without pixels, which takes every call and shows nothing.
    paint::Port& target() { return current_ ? *current_ : nowhere_; }

  private:
    std::vector<const paint::Port*> all_;
    paint::Port* current_ = nullptr;
    paint::Port nowhere_{{}, 1.0, 0xffffff};
};

// Makes a port current for a scope.
class CurrentPortScope {
  public:
    CurrentPortScope(Ports& ports, paint::Port& port) : ports_(ports), saved_(ports.current()) {
        ports_.makeCurrent(&port);
    }
    CurrentPortScope(const CurrentPortScope&) = delete;
    CurrentPortScope& operator=(const CurrentPortScope&) = delete;
    ~CurrentPortScope() { ports_.makeCurrent(saved_); }

  private:
    Ports& ports_;
    paint::Port* saved_;
};

} // namespace easel::runtime
