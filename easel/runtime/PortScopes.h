// Scopes that put back parts of the state that the current port had, if that port is still there.
#pragma once

#include "easel/paint/Port.h"
#include "easel/runtime/Ports.h"

namespace easel::runtime {

// Puts one part of the state back.
template <auto part> class PortPartScope {
  public:
    // The ports outlive the scope.
    explicit PortPartScope(Ports& ports)
        : ports_(ports), port_(&ports.target()), saved_(port_->state().*part) {}
    PortPartScope(const PortPartScope&) = delete;
    PortPartScope& operator=(const PortPartScope&) = delete;
    ~PortPartScope() {
        if (ports_.has(port_))
            port_->state().*part = saved_;
    }

  private:
    using Part = std::remove_reference_t<decltype(std::declval<paint::PortState&>().*part)>;

    Ports& ports_;
    paint::Port* port_;
    Part saved_;
};

using PenScope = PortPartScope<&paint::PortState::pen>;
using ForegroundScope = PortPartScope<&paint::PortState::foreground>;
using BackgroundScope = PortPartScope<&paint::PortState::background>;
using ClipScope = PortPartScope<&paint::PortState::clip>;

} // namespace easel::runtime
