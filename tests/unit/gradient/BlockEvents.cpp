// Stands between the plug-in and the host's memory blocks.
#include "tests/unit/gradient/BlockEvents.h"

#include "host/Gradient.h"
#include "host/Memory.h"

#include <dlfcn.h>

std::vector<std::string> gBlockEvents;

namespace {

// The host's own operation, which the one of this program hides.
template <typename Function> Function* HostOperation(const char* mangledName) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, mangledName));
}

} // namespace

void HLock(Handle block) {
    gBlockEvents.emplace_back("lock");
    HostOperation<void(Handle)>("_Z5HLockPPc")(block);
}

void HUnlock(Handle block) {
    gBlockEvents.emplace_back("unlock");
    HostOperation<void(Handle)>("_Z7HUnlockPPc")(block);
}

void DisposeHandle(Handle block) {
    gBlockEvents.emplace_back("dispose");
    HostOperation<void(Handle)>("_Z13DisposeHandlePPc")(block);
}

bool ExtractGradientInfo(char* bytes, long size, CGradientData& out) {
    gBlockEvents.emplace_back("read");
    return HostOperation<bool(char*, long, CGradientData&)>("_Z19ExtractGradientInfoPclR13CGradientData")(
        bytes, size, out);
}
