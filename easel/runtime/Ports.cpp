// The ports there are and the one that is current.
#include "easel/runtime/Ports.h"

#include <algorithm>

namespace easel::runtime {

void Ports::forget(const paint::Port& port) {
    std::erase(all_, &port);
    if (current_ == &port)
        current_ = nullptr;
}

bool Ports::has(const paint::Port* port) const {
    return std::find(all_.begin(), all_.end(), port) != all_.end();
}

} // namespace easel::runtime
