// The ports there are and the one that is current.
#include "easel/runtime/CurrentPort.h"

#include "easel/paint/Port.h"
#include "easel/runtime/Host.h"

#include <algorithm>
#include <vector>

namespace easel::runtime {

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

bool isRegistered(const paint::Port* port) {
    return std::find(ports().begin(), ports().end(), port) != ports().end();
}

void setCurrentPort(paint::Port* port) {
    theHost().currentPort = isRegistered(port) ? port : nullptr;
}

paint::Port& currentPort() {
    static paint::Port nowhere({}, 1.0, 0xffffff);
    paint::Port* const port = theHost().currentPort;
    return port != nullptr ? *port : nowhere;
}

CurrentPortScope::CurrentPortScope(paint::Port& port) : saved_(theHost().currentPort) {
    setCurrentPort(&port);
}

CurrentPortScope::~CurrentPortScope() {
    setCurrentPort(saved_);
}

} // namespace easel::runtime
