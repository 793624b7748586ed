// The one host of the process.
#include "easel/runtime/Host.h"

#include "easel/runtime/PickFilter.h"

namespace easel::runtime {

Host& theHost() {
    static Host host{.user = nullptr,
                     .activeWindow = nullptr,
                     .currentPort = nullptr,
                     .pickFilter = filterOf(drawing::KindSet::all()),
                     .snap = {}};
    return host;
}

} // namespace easel::runtime
