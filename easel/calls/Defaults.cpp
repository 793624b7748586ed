// Implements host/Defaults.h.
#include "host/Defaults.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/Storage.h"

#include <algorithm>

using namespace easel;
using runtime::journal;
using runtime::theStorage;

Handle GetDefaultsResource(unsigned long type, short id) {
    journal("GetDefaultsResource", type, id);
    const auto stored = theStorage().defaults().read();
    const auto* const resource = stored ? stored->find(static_cast<std::uint32_t>(type), id) : nullptr;
    if (!resource)
        return nullptr;
    Handle const block = runtime::MemoryBlocks::shared().create(resource->data.size());
    if (block)
        std::copy(resource->data.begin(), resource->data.end(), *block);
    return block;
}

void SetDefaultsResource(Handle data, unsigned long type, short id, CStr255 name) {
    journal("SetDefaultsResource", type, id, classic::fromMacRoman(name.Text()));
    const auto size = runtime::MemoryBlocks::shared().size(data);
    if (!size)
        return;
    theStorage().files().settle();
    classic::Resource resource{static_cast<std::uint32_t>(type), id, 0, name.Text(),
                               files::Bytes(*data, *data + *size)};
    if (const auto kept = theStorage().defaults().put(std::move(resource)); !kept)
        theStorage().tellError(kept.error());
}
