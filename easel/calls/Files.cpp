// Implements host/Files.h.
#include "host/Files.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/HostSpec.h"
#include "easel/runtime/Process.h"

using namespace easel;
using classic::fromMacRoman;
using runtime::journal;
using runtime::process;

namespace {

// What is done with a file is about that file, and no question after it.
classic::FileSpec toUse(const FSSpec& spec) {
    process().storage().takeFound();
    return runtime::fileSpecFrom(spec);
}

} // namespace

FSSpec FindSecondaryPreferencesFolder(const CStr255& name, bool create) {
    journal("FindSecondaryPreferencesFolder", fromMacRoman(name.Text()), create);
    const auto found = process().storage().files().findSecondaryFolder(
        name.Text(), create ? classic::FolderCreation::IfMissing : classic::FolderCreation::Never);
    if (!found.usable)
        process().storage().tellNothingIsKept(found.usable.error());
    return runtime::hostSpecFrom(found.spec);
}

void EnumerShell(short vRefNum, long dirID, unsigned long fileType, FSSpec** list) {
    journal("EnumerShell", vRefNum, dirID, fileType);
    const auto records = process().storage().enumeration().records(process().storage().files(), vRefNum,
                                                                   dirID, static_cast<OSType>(fileType));
    process().blocks().append(reinterpret_cast<Handle>(list),
                              {reinterpret_cast<const char*>(records.data()), records.size_bytes()});
}

OSErr FSMakeFSSpec(short vRefNum, long dirID, const CStr255& name, FSSpec* out) {
    journal("FSMakeFSSpec", vRefNum, dirID, fromMacRoman(name.Text()));
    classic::FileSpec spec;
    const auto result = process().storage().resolve(vRefNum, dirID, name.Text(), spec);
    if (result == classic::FileResult::Done || result == classic::FileResult::NoSuchFile)
        *out = runtime::hostSpecFrom(spec);
    return static_cast<OSErr>(result);
}

OSErr FSpDelete(const FSSpec* spec) {
    journal("FSpDelete");
    return static_cast<OSErr>(process().storage().files().remove(toUse(*spec)));
}

void FSpCreateResFile(const FSSpec* spec, OSType creator, OSType fileType, short scriptCode) {
    journal("FSpCreateResFile", creator, fileType, scriptCode);
    process().storage().files().create(toUse(*spec), {fileType, creator});
}

short FSpOpenResFile(const FSSpec* spec, signed char permission) {
    journal("FSpOpenResFile", permission);
    const auto access = permission == kReadPermission ? classic::Access::Read : classic::Access::Write;
    return process().storage().resourceFiles().open(toUse(*spec), access);
}

short CurResFile() {
    journal("CurResFile");
    return process().storage().resourceFiles().current();
}

void UseResFile(short refNum) {
    journal("UseResFile", refNum);
    process().storage().resourceFiles().use(refNum);
}

void CloseResFile(short refNum) {
    journal("CloseResFile", refNum);
    process().storage().resourceFiles().close(refNum);
}

void AddResource(Handle data, OSType type, short id, const CStr255& name) {
    journal("AddResource", type, id, fromMacRoman(name.Text()));
    process().storage().resourceFiles().add(data, type, id, name.Text());
}

Handle GetResource(OSType type, short id) {
    journal("GetResource", type, id);
    return process().storage().resourceFiles().get(type, id);
}

void DetachResource(Handle resource) {
    journal("DetachResource");
    process().storage().resourceFiles().detach(resource);
}
