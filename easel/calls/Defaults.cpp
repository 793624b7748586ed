// Implements host/Defaults.h.
#include "host/Defaults.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/Process.h"

#include <algorithm>

using namespace easel;
using runtime::journal;
using runtime::process;

Handle GetDefaultsResource(unsigned long type, short id) {
    journal("GetDefaultsResource", type, id);
    const auto stored = process().storage().defaults().read();
    const auto* const resource = stored ? stored->find(static_cast<std::uint32_t>(type), id) : nullptr;
    if (!resource)
        return nullptr;
    const Handle block = process().blocks().create(resource->data.size());
    if (block)
        std::copy(resource->data.begin(), resource->data.end(), *block);
    return block;
}

void SetDefaultsResource(Handle data, unsigned long type, short id, CStr255 name) {
    journal("SetDefaultsResource", type, id, classic::fromMacRoman(name.Text()));
    const auto size = process().blocks().size(data);
    if (!size)
        return;
    process().storage().files().settle();
    classic::Resource resource{static_cast<std::uint32_t>(type), id, 0, name.Text(),
                               files::Bytes(*data, *data + *size)};
    if (const auto kept = process().storage().defaults().put(std::move(resource)); !kept)
        process().storage().tellDefaultsNotKept(kept.error());
}
