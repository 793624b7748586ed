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

files::OrFileError<ResourceFork> DefaultsStore::read() const {
    const auto bytes = files::readWholeFile(file(), kLargestFile);
    if (const auto* const error = std::get_if<files::FileError>(&bytes)) {
        if (error->code == std::errc::no_such_file_or_directory)
            return ResourceFork();
        return *error;
    }
    auto fork = ResourceFork::read(std::get<files::Bytes>(bytes));
    if (const auto* const damage = std::get_if<ForkDamage>(&fork))
        return files::FileError{file(), describe(*damage), {}};
    return std::get<ResourceFork>(std::move(fork));
}

files::FileOutcome DefaultsStore::put(Resource resource) const {
    std::error_code error;
    fs::create_directories(places_.preferences, error);
    if (error)
        return files::FileError{places_.preferences, error.message(), error};
    const files::FolderLock lock(places_.preferences);
    auto stored = read();
    ResourceFork fork;
    if (auto* const whole = std::get_if<ResourceFork>(&stored))
        fork = std::move(*whole);
    else if (std::get<files::FileError>(stored).code)
        return std::get<files::FileError>(stored);
    else if (auto failure = files::Trash(places_.trash).move(file()))
        return failure;
    fork.put(std::move(resource));
    const auto bytes = fork.write();
    if (!bytes)
        return files::FileError{file(), "the defaults are larger than a resource file can be", {}};
    return files::replaceFile(file(), *bytes);
}

} // namespace easel::classic
