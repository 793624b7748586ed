// Loads the plug-in with the dynamic linker.
#include "easel/runtime/PluginModule.h"

#include "easel/runtime/PluginResourceFile.h"
#include "easel/runtime/ToolPalette.h"

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

void requireRegularFile(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found)
        throw PluginError(file.string() + ": no such file");
    if (error)
        throw PluginError(file.string() + ": " + error.message());
    if (!fs::is_regular_file(status))
        throw PluginError(file.string() + ": not a file");
}

} // namespace

void PluginModule::Unload::operator()(void* library) const {
    dlclose(library);
}

PluginModule::PluginModule(const fs::path& file) : file_(fs::absolute(file)) {
    requireRegularFile(file_);
    dlerror();
    library_.reset(dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL));
    if (!library_)
        throw PluginError(file_.string() + ": cannot be loaded: " + linkerReason(file_));
    void* entry = dlsym(library_.get(), "MainEntry");
    if (!entry)
        throw PluginError(file_.string() + ": not a plug-in: it has no MainEntry");
    entry_ = reinterpret_cast<Entry>(entry);
    resources_ = openPluginResources(resourceFolder());
}

PluginModule::~PluginModule() {
    thePalette().clear();
    closePluginResources();
}

std::int32_t PluginModule::send(std::int16_t message) {
    return entry_(message, nullptr);
}

fs::path PluginModule::resourceFolder(const fs::path& file) {
    return file.parent_path() / file.stem();
}

fs::path PluginModule::defaultFile() {
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path beside = folder / "plugins" / "Gradient.so";
    const fs::path installed = folder / ".." / "lib" / "easel" / "plugins" / "Gradient.so";
    return !fs::exists(beside, error) && fs::exists(installed, error) ? installed.lexically_normal() : beside;
}

} // namespace easel::runtime
