// The one host of the process.
#include "easel/interface/Host.h"

namespace easel::host {

Host& theHost() {
    static Host host;
    return host;
}

} // namespace easel::host
