// Where drawing calls go, and how that is kept from outliving its port.
#pragma once

namespace easel::paint {
class Port;
}

namespace easel::runtime {

// Ports that can be current announce themselves, since the plug-in saves and restores the current port around
// dialogs that may be gone by then.
void registerPort(paint::Port& port);
// To be called before a registered port is destroyed. If it is the current one, none is.
void forgetPort(const paint::Port& port);

bool isRegistered(const paint::Port* port);

// Makes a port current if it is registered, and none otherwise.
void setCurrentPort(paint::Port* port);

// The current port; while there is none, a port without pixels, which takes every call and shows nothing.
paint::Port& currentPort();

// Makes a registered port current for a scope.
class CurrentPortScope {
  public:
    explicit CurrentPortScope(paint::Port& port);
    CurrentPortScope(const CurrentPortScope&) = delete;
    CurrentPortScope& operator=(const CurrentPortScope&) = delete;
    ~CurrentPortScope();

  private:
    paint::Port* saved_;
};

} // namespace easel::runtime
