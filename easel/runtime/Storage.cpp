// What the user is told about storage that fails.
#include "easel/runtime/Storage.h"

#include "easel/classic/HostNames.h"
#include "easel/classic/MacRoman.h"

namespace easel::runtime {

Storage::Storage(const classic::StoragePlaces& places, MemoryBlocks& blocks, Tell tell)
    : tell_(std::move(tell)), files_(places, [this](const files::Error& error) { tellError(error); }),
      resourceFiles_(
          files_, blocks, [this](const files::Error& error) { tellError(error); },
          [this](const files::Error& error) { tell_(error, "It could not be read."); }),
      defaults_(places) {}

classic::FileResult Storage::resolve(std::int16_t volume, std::int64_t folder, std::string_view name,
                                     classic::FileSpec& out) {
    using enum classic::FileResult;
    const auto result = files_.resolve(volume, folder, name, out);
    refusal_.reset();
    found_ = result == Done ? std::optional(classic::fromMacRoman(out.name)) : std::nullopt;
    if (result != Done && result != NoSuchFile)
        refusal_ = refusalOf(result, name);
    return result;
}

std::optional<files::Error> Storage::takeRefusal() {
    if (refusal_ && unusable_)
        keptAll_ = false;
    return std::exchange(refusal_, std::nullopt);
}

std::optional<std::string> Storage::takeFound() {
    return std::exchange(found_, std::nullopt);
}

files::Error Storage::refusalOf(classic::FileResult result, std::string_view name) const {
    if (result == classic::FileResult::BadName)
        return {classic::fromMacRoman(name), classic::whyNoFile(name), {}};
    return unusable_ ? *unusable_ : files::Error{classic::fromMacRoman(name), "its folder is not there", {}};
}

void Storage::tellError(const files::Error& error) {
    keptAll_ = false;
    tell_(error, "The change was not kept.");
}

void Storage::tellNothingIsKept(const files::Error& error) {
    if (!std::exchange(unusable_, error))
        tell_(error, "The current gradient and templates will not be kept.");
}

void Storage::tellDefaultsNotKept(const files::Error& error) {
    keptAll_ = false;
    if (!unusable_)
        tellError(error);
}

} // namespace easel::runtime
