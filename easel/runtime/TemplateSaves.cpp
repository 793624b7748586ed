// Whether templates were saved since some moment.
#include "easel/runtime/TemplateSaves.h"

#include "easel/files/FolderReader.h"

#include <system_error>
#include <utility>

namespace easel::runtime {

namespace fs = std::filesystem;

namespace {

// The beginning of time for what is not there.
fs::file_time_type lastChange(const fs::path& path) {
    std::error_code missing;
    const fs::file_time_type time = fs::last_write_time(path, missing);
    return missing ? fs::file_time_type::min() : time;
}

} // namespace

TemplateSaves::TemplateSaves(fs::path folder) : folder_(std::move(folder)), changed_(lastChange(folder_)) {}

bool TemplateSaves::any() const {
    // Files are written elsewhere and renamed, which changes the folder, as deleting one does.
    if (lastChange(folder_) == changed_)
        return false;
    files::FolderReader files(folder_);
    while (files.next())
        if (lastChange(folder_ / files.name()) > changed_)
            return true;
    return false;
}

} // namespace easel::runtime
