// Keeps the loaded plug-in's resources, and implements the string lists of host/Strings.h.
#include "easel/runtime/PluginResourceFile.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/Journal.h"
#include "host/Strings.h"

#include <cstring>

namespace easel::runtime {
namespace {

classic::PluginResources& current() {
    static classic::PluginResources resources;
    return resources;
}

} // namespace

const classic::PluginResources& pluginResources() {
    return current();
}

files::Result<> openPluginResources(const std::filesystem::path& folder) {
    closePluginResources();
    return classic::PluginResources::read(folder).map(
        [](classic::PluginResources&& resources) { current() = std::move(resources); });
}

void closePluginResources() {
    current() = {};
}

} // namespace easel::runtime

CStr255 GetIndString(short listId, short index) {
    easel::runtime::journal("GetIndString", listId, index);
    // The reader of the resources has made sure that every text can be converted.
    return easel::classic::toMacRoman(easel::runtime::pluginResources().string(listId, index)).value_or("");
}

void GetIndString(CStr255& out, short listId, short index) {
    out = GetIndString(listId, index);
}

void GetIndString(unsigned char* out, short listId, short index) {
    const CStr255 text = GetIndString(listId, index);
    std::memcpy(out, text.PascalBytes(), text.Length() + 1);
}
