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

} // namespace easel::runtime

CStr255 GetIndString(short listId, short index) {
    easel::runtime::journal("GetIndString", listId, index);
    // The reader of the resources has made sure that every text can be converted.
    return easel::classic::toMacRoman(easel::runtime::pluginResources().string(listId, index)).text;
}

void GetIndString(CStr255& out, short listId, short index) {
    out = GetIndString(listId, index);
}

void GetIndString(unsigned char* out, short listId, short index) {
    const CStr255 text = GetIndString(listId, index);
    std::memcpy(out, text.PascalBytes(), text.Length() + 1);
}
