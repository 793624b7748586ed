// Reads a scenario and gives it its folders.
#include "easel/play/Play.h"

#include "easel/files/ScratchFolder.h"
#include "easel/play/Session.h"
#include "easel/runtime/PluginModule.h"
#include "easel/runtime/Process.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <system_error>

namespace easel::play {

namespace fs = std::filesystem;

namespace {

constexpr const char* kStandardInput = "-";

std::string contentOf(std::istream& stream) {
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

files::Result<std::string> readScript(const std::string& file, std::istream& input) {
    if (file == kStandardInput)
        return contentOf(input);
    std::error_code error;
    if (fs::is_directory(file, error))
        return tl::unexpected(files::Error{file, "is a folder", {}});
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        const std::error_code code(errno != 0 ? errno : EIO, std::generic_category());
        return tl::unexpected(files::Error{file, code.message(), code});
    }
    return contentOf(stream);
}

fs::path folderOf(const std::string& file) {
    return file == kStandardInput ? fs::current_path() : fs::absolute(file).parent_path();
}

// With a folder of its own a scenario leaves nothing behind, in the desktop's trash neither.
classic::StoragePlaces placesOf(const PlayRequest& request,
                                const std::optional<files::ScratchFolder>& scratch) {
    if (scratch)
        return classic::StoragePlaces::within(scratch->path());
    return {fs::absolute(request.preferences), files::Trash::desktopHome()};
}

} // namespace

PlayOutcome playScenario(const PlayRequest& request, std::istream& input, std::ostream& answers,
                         std::ostream& messages) {
    auto script = readScript(request.file, input);
    if (!script) {
        messages << script.error().message() << '\n';
        return PlayOutcome::Failed;
    }
    std::optional<files::ScratchFolder> scratch;
    if (request.preferences.empty()) {
        auto made = files::ScratchFolder::make();
        if (!made) {
            messages << made.error().message() << '\n';
            return PlayOutcome::Failed;
        }
        scratch.emplace(std::move(*made));
    }
    runtime::Process process(placesOf(request, scratch));
    Session session({.script = std::move(*script),
                     .name = request.file,
                     .folder = folderOf(request.file),
                     .plugin = request.plugin.empty() ? runtime::PluginModule::defaultFile() : request.plugin,
                     .answers = &answers,
                     .messages = &messages},
                    process);
    const bool played = session.play();
    session.unloadPlugin();
    process.storage().files().settle();
    return played && process.storage().keptAll() ? PlayOutcome::Played : PlayOutcome::Failed;
}

} // namespace easel::play
