// The one host of the process.
#include "easel/interface/Host.h"

#include "easel/interface/PickFilter.h"

namespace easel::host {

Host& theHost() {
    static Host host{.user = nullptr,
                     .activeWindow = nullptr,
                     .currentPort = nullptr,
                     .pickFilter = filterOf(drawing::KindSet::all()),
                     .snap = {}};
    return host;
}

} // namespace easel::host
