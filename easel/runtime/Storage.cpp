// What the user is told about storage that fails.
#include "easel/runtime/Storage.h"

#include <utility>

namespace easel::runtime {

Storage::Storage(const classic::StoragePlaces& places, MemoryBlocks& blocks, Tell tell)
    : tell_(std::move(tell)), files_(places, [this](const files::Error& error) { tellError(error); }),
      resourceFiles_(
          files_, blocks, [this](const files::Error& error) { tellError(error); },
          [this](const files::Error& error) { tell_(error.message() + ". It could not be read."); }),
      defaults_(places) {}

void Storage::tellError(const files::Error& error) {
    if (keeping_ == Keeping::AsFarAsKnown)
        tell_(error.message() + ". The change was not kept.");
}

void Storage::tellNothingIsKept(const files::Error& error) {
    if (std::exchange(keeping_, Keeping::Nothing) == Keeping::AsFarAsKnown)
        tell_(error.message() + ". The current gradient and templates will not be kept.");
}

} // namespace easel::runtime
