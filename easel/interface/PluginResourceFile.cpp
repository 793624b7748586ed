// Keeps the loaded plug-in's resources, and implements the string lists of host/Strings.h.
#include "easel/interface/PluginResourceFile.h"

#include "easel/classic/MacRoman.h"
#include "easel/interface/Journal.h"
#include "host/Strings.h"

#include <cstring>

namespace easel::host {
namespace {

classic::PluginResources& current() {
    static classic::PluginResources resources;
    return resources;
}

} // namespace

const classic::PluginResources& pluginResources() {
    return current();
}

files::FileOutcome openPluginResources(const std::filesystem::path& folder) {
    closePluginResources();
    auto read = classic::PluginResources::read(folder);
    if (auto* const error = std::get_if<files::FileError>(&read))
        return std::move(*error);
    current() = std::get<classic::PluginResources>(std::move(read));
    return {};
}

void closePluginResources() {
    current() = {};
}

} // namespace easel::host

CStr255 GetIndString(short listId, short index) {
    easel::host::journal("GetIndString", listId, index);
    // The reader of the resources has made sure that every text can be converted.
    return easel::classic::toMacRoman(easel::host::pluginResources().string(listId, index)).text;
}

void GetIndString(CStr255& out, short listId, short index) {
    out = GetIndString(listId, index);
}

void GetIndString(unsigned char* out, short listId, short index) {
    const CStr255 text = GetIndString(listId, index);
    std::memcpy(out, text.PascalBytes(), text.Length() + 1);
}
