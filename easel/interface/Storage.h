// Where the host keeps things on disk: one set of files, resource files and defaults for the whole process.
#pragma once

#include "easel/interface/Enumeration.h"
#include "easel/toolbox/DefaultsStore.h"
#include "easel/toolbox/ResourceFiles.h"

namespace easel::host {

class Storage {
  public:
    explicit Storage(const toolbox::StoragePlaces& places);

    toolbox::HostFiles& files() { return files_; }
    Enumeration& enumeration() { return enumeration_; }
    toolbox::ResourceFiles& resourceFiles() { return resourceFiles_; }
    const toolbox::DefaultsStore& defaults() const { return defaults_; }

    // Tells the user what could not be kept. Once it is known that nothing can be, there is no more to say.
    void tellFailure(const toolbox::FileError& error);
    void tellNothingIsKept(const toolbox::FileError& error);

  private:
    enum class Keeping { AsFarAsKnown, Nothing };

    Keeping keeping_ = Keeping::AsFarAsKnown;
    toolbox::HostFiles files_;
    Enumeration enumeration_;
    toolbox::ResourceFiles resourceFiles_;
    toolbox::DefaultsStore defaults_;
};

// The one storage of the process: the user's own places until others are set.
Storage& theStorage();

// To be called before the plug-in is loaded. Open files of earlier places are closed.
void useStorage(const toolbox::StoragePlaces& places);

} // namespace easel::host
