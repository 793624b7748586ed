// The ports there are and the one that is current.
#include "easel/interface/CurrentPort.h"

#include "easel/interface/Host.h"

#include <algorithm>
#include <vector>

namespace easel::host {

namespace {

std::vector<const paint::Port*>& ports() {
    static std::vector<const paint::Port*> all;
    return all;
}

} // namespace

void registerPort(paint::Port& port) {
    ports().push_back(&port);
}

void forgetPort(const paint::Port& port) {
    std::erase(ports(), &port);
    if (theHost().currentPort == &port)
        theHost().currentPort = nullptr;
}

void setCurrentPort(paint::Port* port) {
    const bool alive = std::find(ports().begin(), ports().end(), port) != ports().end();
    theHost().currentPort = alive ? port : nullptr;
}

CurrentPortScope::CurrentPortScope(paint::Port& port) : saved_(theHost().currentPort) {
    setCurrentPort(&port);
}

CurrentPortScope::~CurrentPortScope() {
    setCurrentPort(saved_);
}

} // namespace easel::host
