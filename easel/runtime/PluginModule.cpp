// Loads the plug-in with the dynamic linker.
#include "easel/runtime/PluginModule.h"

#include "easel/files/ProgramFolders.h"
#include "easel/runtime/Process.h"

#include <dlfcn.h>

#include <string>
#include <system_error>

namespace easel::runtime {

namespace fs = std::filesystem;

namespace {

// The linker's own message often begins with the file's name, which the error names already.
std::string linkerReason(const fs::path& file) {
    const char* text = dlerror();
    std::string reason = text ? text : "unknown error of the dynamic linker";
    const std::string prefix = file.string() + ": ";
    if (reason.starts_with(prefix))
        reason.erase(0, prefix.size());
    return reason;
}

files::Result<> checkRegularFile(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found)
        return tl::unexpected(files::Error{file, "no such file", {}});
    if (error)
        return tl::unexpected(files::Error{file, error.message(), error});
    if (!fs::is_regular_file(status))
        return tl::unexpected(files::Error{file, "not a file", {}});
    return {};
}

} // namespace

void PluginModule::Unload::operator()(void* library) const {
    dlclose(library);
}

PluginModule::PluginModule(fs::path file, Library library, Entry entry, Process& process,
                           const std::vector<std::string>& languages)
    : process_(process), file_(std::move(file)), library_(std::move(library)), entry_(entry),
      resources_(process.plugin().open(resourceFolder(), languages)) {}

files::Result<std::unique_ptr<PluginModule>> PluginModule::load(const fs::path& given, Process& process,
                                                                const std::vector<std::string>& languages) {
    const fs::path file = fs::absolute(given);
    if (const auto checked = checkRegularFile(file); !checked)
        return tl::unexpected(checked.error());
    dlerror();
    Library library(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL));
    if (!library)
        return tl::unexpected(files::Error{file, "cannot be loaded: " + linkerReason(file), {}});
    void* entry = dlsym(library.get(), "MainEntry");
    if (!entry)
        return tl::unexpected(files::Error{file, "not a plug-in: it has no MainEntry", {}});
    return std::unique_ptr<PluginModule>(
        new PluginModule(file, std::move(library), reinterpret_cast<Entry>(entry), process, languages));
}

PluginModule::~PluginModule() {
    process_.palette().clear();
    process_.plugin().close();
}

std::int32_t PluginModule::send(std::int16_t message) {
    return entry_(message, nullptr);
}

fs::path PluginModule::resourceFolder(const fs::path& file) {
    return file.parent_path() / file.stem();
}

fs::path PluginModule::defaultFile() {
    return files::pluginFile("Gradient.so");
}

} // namespace easel::runtime
