// Implements the files of host/Files.h.
#include "host/Files.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/HostSpec.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/Storage.h"

#include <algorithm>
#include <cstring>

using namespace easel;
using classic::fromMacRoman;
using runtime::journal;
using runtime::theStorage;

namespace easel::runtime {

classic::FileSpec fileSpecFrom(const FSSpec& spec) {
    const std::size_t length = std::min<std::size_t>(spec.name[0], sizeof(spec.name) - 1);
    return {spec.vRefNum, spec.parID, std::string(reinterpret_cast<const char*>(spec.name + 1), length)};
}

FSSpec hostSpecFrom(const classic::FileSpec& spec) {
    FSSpec out{};
    out.vRefNum = spec.volume;
    out.parID = spec.folder;
    const std::size_t length = std::min(spec.name.size(), sizeof(out.name) - 1);
    out.name[0] = static_cast<std::uint8_t>(length);
    std::memcpy(out.name + 1, spec.name.data(), length);
    return out;
}

} // namespace easel::runtime

FSSpec FindSecondaryPreferencesFolder(CStr255 const& name, bool create) {
    journal("FindSecondaryPreferencesFolder", fromMacRoman(name.Text()), create);
    const auto found = theStorage().files().findSecondaryFolder(
        name.Text(), create ? classic::FolderCreation::IfMissing : classic::FolderCreation::Never);
    if (!found.usable)
        theStorage().tellNothingIsKept(found.usable.error());
    return runtime::hostSpecFrom(found.spec);
}

void EnumerShell(short vRefNum, long dirID, unsigned long fileType, FSSpec** list) {
    journal("EnumerShell", vRefNum, dirID, fileType);
    const auto records = theStorage().enumeration().records(theStorage().files(), vRefNum, dirID,
                                                            static_cast<OSType>(fileType));
    runtime::MemoryBlocks::shared().append(
        reinterpret_cast<Handle>(list),
        {reinterpret_cast<const char*>(records.data()), records.size_bytes()});
}

OSErr FSMakeFSSpec(short vRefNum, long dirID, CStr255 const& name, FSSpec* out) {
    journal("FSMakeFSSpec", vRefNum, dirID, fromMacRoman(name.Text()));
    classic::FileSpec spec;
    const auto result = theStorage().files().resolve(vRefNum, dirID, name.Text(), spec);
    if (result == classic::FileResult::Done || result == classic::FileResult::NoSuchFile)
        *out = runtime::hostSpecFrom(spec);
    return static_cast<OSErr>(result);
}

OSErr FSpDelete(FSSpec const* spec) {
    journal("FSpDelete");
    return static_cast<OSErr>(theStorage().files().remove(runtime::fileSpecFrom(*spec)));
}

void FSpCreateResFile(FSSpec const* spec, OSType creator, OSType fileType, short scriptCode) {
    journal("FSpCreateResFile", creator, fileType, scriptCode);
    theStorage().files().create(runtime::fileSpecFrom(*spec), {fileType, creator});
}
