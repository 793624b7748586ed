// Where the host keeps things on disk: one set of files, resource files and defaults.
#pragma once

#include "easel/classic/DefaultsStore.h"
#include "easel/runtime/Enumeration.h"
#include "easel/runtime/ResourceFiles.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace easel::runtime {

class Storage {
  public:
    // Says to the user what went wrong, and in a sentence what comes of it.
    using Tell = std::function<void(const files::Error&, const std::string&)>;

    // Resources are read into the blocks, which outlive the storage.
    Storage(const classic::StoragePlaces& places, MemoryBlocks& blocks, Tell tell);

    classic::HostFiles& files() { return files_; }
    // As the files resolve it; see takeRefusal.
    classic::FileResult resolve(std::int16_t volume, std::int64_t folder, std::string_view name,
                                classic::FileSpec& out);
    // Why the name that was resolved last can be that of no file: a question that is asked right after it is
    // about something that does not exist and cannot be made. Nothing if it can be one, and once taken.
    std::optional<files::Error> takeRefusal();
    // The name (UTF-8) of the file that was found when a name was resolved last: a question that is asked
    // right after it is about that file. Nothing if there was no such file, and once taken.
    std::optional<std::string> takeFound();
    Enumeration& enumeration() { return enumeration_; }
    ResourceFiles& resourceFiles() { return resourceFiles_; }
    const classic::DefaultsStore& defaults() const { return defaults_; }

    // Whether nothing that was to be kept was lost so far.
    bool keptAll() const { return keptAll_; }
    // Tells the user what could not be kept.
    void tellError(const files::Error& error);
    // Tells it in advance of the defaults and templates, for want of a folder; the first time only.
    void tellNothingIsKept(const files::Error& error);
    // Tells that the defaults could not be kept, unless it was told in advance.
    void tellDefaultsNotKept(const files::Error& error);

  private:
    files::Error refusalOf(classic::FileResult result, std::string_view name) const;

    Tell tell_;
    bool keptAll_ = true;
    std::optional<files::Error> unusable_; // why there is no folder to keep anything in
    std::optional<files::Error> refusal_;
    std::optional<std::string> found_;
    classic::HostFiles files_;
    Enumeration enumeration_;
    ResourceFiles resourceFiles_;
    classic::DefaultsStore defaults_;
};

} // namespace easel::runtime
