// Reads a scenario and gives it its folders.
#include "easel/play/Play.h"

#include "easel/files/ScratchFolder.h"
#include "easel/play/Session.h"
#include "easel/runtime/PluginModule.h"
#include "easel/runtime/Storage.h"

#include <cerrno>
#include <cstring>
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

// Nothing, and a word to the user, if the file cannot be read.
std::optional<std::string> readScript(const std::string& file, std::istream& input, std::ostream& messages) {
    if (file == kStandardInput)
        return contentOf(input);
    std::error_code error;
    if (fs::is_directory(file, error)) {
        messages << file << ": is a folder\n";
        return std::nullopt;
    }
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        messages << file << ": " << std::strerror(errno != 0 ? errno : EIO) << '\n';
        return std::nullopt;
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
    auto script = readScript(request.file, input, messages);
    if (!script)
        return PlayOutcome::failed;
    std::optional<files::ScratchFolder> scratch;
    if (request.preferences.empty()) {
        auto made = files::ScratchFolder::make();
        if (const auto* error = std::get_if<files::FileError>(&made)) {
            messages << error->message() << '\n';
            return PlayOutcome::failed;
        }
        scratch.emplace(std::get<files::ScratchFolder>(std::move(made)));
    }
    runtime::useStorage(placesOf(request, scratch));
    Session session({.script = std::move(*script),
                     .name = request.file,
                     .folder = folderOf(request.file),
                     .plugin = request.plugin.empty() ? runtime::PluginModule::defaultFile() : request.plugin,
                     .answers = &answers,
                     .messages = &messages});
    const bool played = session.play();
    session.unloadPlugin();
    runtime::theStorage().files().settle();
    return played ? PlayOutcome::played : PlayOutcome::failed;
}

} // namespace easel::play
