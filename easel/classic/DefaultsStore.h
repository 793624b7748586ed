// The defaults that outlive a run: typed, numbered, named blocks in one resource file in the preferences
// folder.
#pragma once

#include "easel/classic/HostFiles.h"
#include "easel/classic/ResourceFork.h"

namespace easel::classic {

// Nothing is cached, so that two programs with one preferences folder see each other's changes; the later
// wins.
class DefaultsStore {
  public:
    explicit DefaultsStore(StoragePlaces places) : places_(std::move(places)) {}

    std::filesystem::path file() const { return places_.preferences / "Defaults.rsrc"; }

    // Everything stored. A file that is missing holds nothing.
    files::Result<ResourceFork> read() const;
    // Stores a default in place of an earlier one. A damaged file goes to the trash first.
    [[nodiscard]] files::Result<> put(Resource resource) const;

  private:
    StoragePlaces places_;
};

} // namespace easel::classic
