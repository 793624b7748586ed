// Resource files: any bytes are refused, or give resources that survive writing and reading.
#include "easel/classic/ResourceFork.h"

#include <cstdlib>

using namespace easel::classic;
using namespace easel::files;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto fork = ResourceFork::read({data, size});
    if (!fork)
        return 0;
    const auto written = fork->write();
    if (!written)
        return 0;
    const auto back = ResourceFork::read(*written);
    // Resources of one type come together when they are written, so compare one by one.
    if (!back || back->resources().size() != fork->resources().size())
        std::abort();
    for (const auto& resource : fork->resources())
        if (*back->find(resource.type, resource.id) != *fork->find(resource.type, resource.id))
            std::abort();
    return 0;
}
