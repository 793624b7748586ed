// Where the host keeps things on disk: one set of files, resource files and defaults for the whole process.
#pragma once

#include "easel/classic/DefaultsStore.h"
#include "easel/runtime/Enumeration.h"
#include "easel/runtime/ResourceFiles.h"

namespace easel::runtime {

class Storage {
  public:
    explicit Storage(const classic::StoragePlaces& places);

    classic::HostFiles& files() { return files_; }
    Enumeration& enumeration() { return enumeration_; }
    ResourceFiles& resourceFiles() { return resourceFiles_; }
    const classic::DefaultsStore& defaults() const { return defaults_; }

    // Tells the user what could not be kept. Once it is known that nothing can be, there is no more to say.
    void tellError(const files::Error& error);
    void tellNothingIsKept(const files::Error& error);

  private:
    enum class Keeping { AsFarAsKnown, Nothing };

    Keeping keeping_ = Keeping::AsFarAsKnown;
    classic::HostFiles files_;
    Enumeration enumeration_;
    ResourceFiles resourceFiles_;
    classic::DefaultsStore defaults_;
};

// The one storage of the process: the user's own places until others are set.
Storage& theStorage();

// To be called before the plug-in is loaded. Open files of earlier places are closed.
void useStorage(const classic::StoragePlaces& places);

} // namespace easel::runtime
