// Between names that are counted and names that are not.
#include "easel/runtime/HostSpec.h"

#include <algorithm>
#include <cstring>

namespace easel::runtime {

classic::FileSpec fileSpecFrom(const FSSpec& spec) {
    const std::size_t length = std::min<std::size_t>(spec.name[0], sizeof(spec.name) - 1);
    return {spec.vRefNum, spec.parID, std::string(reinterpret_cast<const char*>(spec.name + 1), length)};
}

FSSpec hostSpecFrom(const classic::FileSpec& spec) {
    FSSpec out{};
    out.vRefNum = spec.volume;
    out.parID = spec.folder;
    const std::size_t length = std::min(spec.name.size(), sizeof(out.name) - 1);
    out.name[0] = static_cast<std::uint8_t>(length);
    std::memcpy(out.name + 1, spec.name.data(), length);
    return out;
}

} // namespace easel::runtime
