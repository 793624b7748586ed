// Reading and changing the file of defaults.
#include "easel/classic/DefaultsStore.h"

#include "easel/files/AtomicFile.h"
#include "easel/files/FolderLock.h"
#include "easel/files/WholeFile.h"

namespace fs = std::filesystem;

namespace easel::classic {
namespace {

constexpr std::uintmax_t kLargestFile = 64U << 20;

} // namespace

files::Result<ResourceFork> DefaultsStore::read() const {
    const auto bytes = files::readWholeFile(file(), kLargestFile);
    if (!bytes) {
        if (bytes.error().code == std::errc::no_such_file_or_directory)
            return ResourceFork();
        return tl::unexpected(bytes.error());
    }
    return ResourceFork::read(*bytes).map_error([this](ForkDamage damage) {
        return files::Error{file(), describe(damage), {}};
    });
}

files::Result<> DefaultsStore::put(Resource resource) const {
    std::error_code error;
    fs::create_directories(places_.preferences, error);
    if (error)
        return tl::unexpected(files::Error{places_.preferences, error.message(), error});
    const files::FolderLock lock(places_.preferences);
    auto stored = read();
    ResourceFork fork;
    if (stored)
        fork = std::move(*stored);
    else if (stored.error().code)
        return tl::unexpected(stored.error());
    else if (auto moved = files::Trash(places_.trash).move(file()); !moved)
        return moved;
    fork.put(std::move(resource));
    const auto bytes = fork.write();
    if (!bytes)
        return tl::unexpected(
            files::Error{file(), "the defaults are larger than a resource file can be", {}});
    return files::replaceFile(file(), *bytes);
}

} // namespace easel::classic
