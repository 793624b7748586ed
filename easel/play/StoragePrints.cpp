// Prints what the host keeps on disk: templates, defaults and open resource files.
#include "easel/classic/MacRoman.h"
#include "easel/play/PlayError.h"
#include "easel/play/Prints.h"
#include "easel/play/Session.h"
#include "easel/runtime/TemplateFolder.h"

namespace easel::play {

namespace {

using classic::fromMacRoman;

std::string codeText(std::uint32_t code) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(static_cast<unsigned char>(code >> shift));
    return fromMacRoman(text);
}

Json resourceOf(const classic::Resource& resource) {
    return {{"type", codeText(resource.type)},
            {"id", resource.id},
            {"name", fromMacRoman(resource.name.value_or(""))},
            {"bytes", resource.data.size()}};
}

Json resourcesOf(const classic::ResourceFork& fork) {
    Json resources = Json::array();
    for (const auto& resource : fork.resources())
        resources.push_back(resourceOf(resource));
    return resources;
}

// A file whose resources cannot be read has none to show.
Json resourcesIn(const classic::FilePair& file) {
    const auto header = classic::readHeader(file);
    if (!header)
        return Json::array();
    return classic::ResourceFork::read(header->resourceFork()).map(resourcesOf).value_or(Json::array());
}

Json fileOf(const classic::ListedFile& file) {
    std::error_code error;
    const auto dataBytes = std::filesystem::file_size(file.file.data(), error);
    return {{"name", fromMacRoman(file.hostName)},
            {"type", codeText(file.info.type)},
            {"creator", codeText(file.info.creator)},
            {"dataBytes", error ? 0 : dataBytes},
            {"resources", resourcesIn(file.file)}};
}

} // namespace

Json printTemplates(Session& session, Arguments&) {
    auto& files = session.process().storage().files();
    const auto folder = runtime::templateFolder(session.pluginFile(), files.places());
    if (!folder)
        throw PlayError(folder.error().message());
    files.settle();
    Json templates = Json::array();
    for (const auto& file : classic::listFolder(*folder).files)
        templates.push_back(fileOf(file));
    return {{"templates", std::move(templates)}};
}

Json printDefaults(Session& session, Arguments&) {
    const auto stored = session.process().storage().defaults().read();
    if (!stored)
        throw PlayError(stored.error().message());
    return {{"defaults", resourcesOf(*stored)}};
}

Json printResourceFiles(Session& session, Arguments&) {
    const auto& files = session.process().storage().resourceFiles();
    return {{"resourceFiles", {{"current", files.current()}, {"open", files.openFiles()}}}};
}

} // namespace easel::play
