// Where the host keeps things on disk: one set of files, resource files and defaults.
#pragma once

#include "easel/classic/DefaultsStore.h"
#include "easel/runtime/Enumeration.h"
#include "easel/runtime/ResourceFiles.h"

#include <functional>
#include <string>

namespace easel::runtime {

class Storage {
  public:
    // Says something to the user.
    using Tell = std::function<void(const std::string&)>;

    // Resources are read into the blocks, which outlive the storage.
    Storage(const classic::StoragePlaces& places, MemoryBlocks& blocks, Tell tell);

    classic::HostFiles& files() { return files_; }
    Enumeration& enumeration() { return enumeration_; }
    ResourceFiles& resourceFiles() { return resourceFiles_; }
    const classic::DefaultsStore& defaults() const { return defaults_; }

    // Tells the user what could not be kept. Once it is known that nothing can be, there is no more to say.
    void tellError(const files::Error& error);
    void tellNothingIsKept(const files::Error& error);

  private:
    enum class Keeping { AsFarAsKnown, Nothing };

    Tell tell_;
    Keeping keeping_ = Keeping::AsFarAsKnown;
    classic::HostFiles files_;
    Enumeration enumeration_;
    ResourceFiles resourceFiles_;
    classic::DefaultsStore defaults_;
};

} // namespace easel::runtime
