// Reading and changing the file of defaults.
#include "easel/toolbox/DefaultsStore.h"

#include "easel/toolbox/AtomicFile.h"
#include "easel/toolbox/FolderLock.h"
#include "easel/toolbox/WholeFile.h"

namespace fs = std::filesystem;

namespace easel::toolbox {
namespace {

constexpr std::uintmax_t kLargestFile = 64U << 20;

} // namespace

OrFileError<ResourceFork> DefaultsStore::read() const {
    const auto bytes = readWholeFile(file(), kLargestFile);
    if (const auto* const error = std::get_if<FileError>(&bytes)) {
        if (error->code == std::errc::no_such_file_or_directory)
            return ResourceFork();
        return *error;
    }
    auto fork = ResourceFork::read(std::get<Bytes>(bytes));
    if (const auto* const damage = std::get_if<ForkDamage>(&fork))
        return FileError{file(), describe(*damage), {}};
    return std::get<ResourceFork>(std::move(fork));
}

FileOutcome DefaultsStore::put(Resource resource) const {
    std::error_code error;
    fs::create_directories(places_.preferences, error);
    if (error)
        return FileError{places_.preferences, error.message(), error};
    const FolderLock lock(places_.preferences);
    auto stored = read();
    ResourceFork fork;
    if (auto* const whole = std::get_if<ResourceFork>(&stored))
        fork = std::move(*whole);
    else if (std::get<FileError>(stored).code)
        return std::get<FileError>(stored);
    else if (auto failure = Trash(places_.trash).move(file()))
        return failure;
    fork.put(std::move(resource));
    const auto bytes = fork.write();
    if (!bytes)
        return FileError{file(), "the defaults are larger than a resource file can be", {}};
    return replaceFile(file(), *bytes);
}

} // namespace easel::toolbox
