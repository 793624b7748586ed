// Keeps the loaded plug-in's resources, and implements the string lists of host/Strings.h.
#include "easel/interface/PluginResourceFile.h"

#include "easel/interface/Journal.h"
#include "easel/toolbox/MacRoman.h"
#include "host/Strings.h"

#include <cstring>

namespace easel::host {
namespace {

toolbox::PluginResources& current() {
    static toolbox::PluginResources resources;
    return resources;
}

} // namespace

const toolbox::PluginResources& pluginResources() {
    return current();
}

toolbox::FileOutcome openPluginResources(const std::filesystem::path& folder) {
    closePluginResources();
    auto read = toolbox::PluginResources::read(folder);
    if (auto* const error = std::get_if<toolbox::FileError>(&read))
        return std::move(*error);
    current() = std::get<toolbox::PluginResources>(std::move(read));
    return {};
}

void closePluginResources() {
    current() = {};
}

} // namespace easel::host

CStr255 GetIndString(short listId, short index) {
    easel::host::journal("GetIndString", listId, index);
    // The reader of the resources has made sure that every text can be converted.
    return easel::toolbox::toMacRoman(easel::host::pluginResources().string(listId, index)).text;
}

void GetIndString(CStr255& out, short listId, short index) {
    out = GetIndString(listId, index);
}

void GetIndString(unsigned char* out, short listId, short index) {
    const CStr255 text = GetIndString(listId, index);
    std::memcpy(out, text.PascalBytes(), text.Length() + 1);
}
