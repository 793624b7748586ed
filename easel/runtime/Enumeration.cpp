// Turns a listing into records once.
#include "easel/runtime/Enumeration.h"

#include "easel/runtime/HostSpec.h"

namespace easel::runtime {

std::span<const FSSpec> Enumeration::records(classic::HostFiles& files, short volume, long folder,
                                             OSType type) {
    const auto& listed = files.list(volume, folder);
    const Question question{files.listingRevision(), volume, folder, type};
    if (asked_ == question)
        return records_;
    records_.clear();
    for (const auto& file : listed)
        if (file.info.type == type)
            records_.push_back(hostSpecFrom({volume, static_cast<std::int32_t>(folder), file.hostName}));
    asked_ = question;
    return records_;
}

} // namespace easel::runtime
