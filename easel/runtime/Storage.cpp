// The storage of the process, and what the user is told about it.
#include "easel/runtime/Storage.h"

#include "easel/runtime/Host.h"
#include "easel/runtime/User.h"

#include <memory>
#include <utility>

namespace easel::runtime {
namespace {

std::unique_ptr<Storage>& slot() {
    static std::unique_ptr<Storage> storage;
    return storage;
}

void tell(const std::string& message) {
    if (auto* const user = theHost().user)
        user->tell(message);
}

} // namespace

Storage::Storage(const classic::StoragePlaces& places)
    : files_(places, [this](const files::Error& error) { tellError(error); }),
      resourceFiles_(files_, MemoryBlocks::shared(), [this](const files::Error& error) { tellError(error); }),
      defaults_(places) {}

void Storage::tellError(const files::Error& error) {
    if (keeping_ == Keeping::AsFarAsKnown)
        tell(error.message() + ". The change was not kept.");
}

void Storage::tellNothingIsKept(const files::Error& error) {
    if (std::exchange(keeping_, Keeping::Nothing) == Keeping::AsFarAsKnown)
        tell(error.message() + ". The current gradient and templates will not be kept.");
}

Storage& theStorage() {
    if (!slot())
        useStorage(classic::StoragePlaces::ofUser());
    return *slot();
}

void useStorage(const classic::StoragePlaces& places) {
    slot().reset();
    slot() = std::make_unique<Storage>(places);
}

} // namespace easel::runtime
