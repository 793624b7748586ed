// Implements the resource files of host/Files.h.
#include "host/Files.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/HostSpec.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/Storage.h"

using namespace easel;
using runtime::journal;
using runtime::theStorage;

short FSpOpenResFile(FSSpec const* spec, signed char permission) {
    journal("FSpOpenResFile", permission);
    const auto access = permission == kReadPermission ? classic::Access::Read : classic::Access::Write;
    return theStorage().resourceFiles().open(runtime::fileSpecFrom(*spec), access);
}

short CurResFile() {
    journal("CurResFile");
    return theStorage().resourceFiles().current();
}

void UseResFile(short refNum) {
    journal("UseResFile", refNum);
    theStorage().resourceFiles().use(refNum);
}

void CloseResFile(short refNum) {
    journal("CloseResFile", refNum);
    theStorage().resourceFiles().close(refNum);
}

void AddResource(Handle data, OSType type, short id, CStr255 const& name) {
    journal("AddResource", type, id, classic::fromMacRoman(name.Text()));
    theStorage().resourceFiles().add(data, type, id, name.Text());
}

Handle GetResource(OSType type, short id) {
    journal("GetResource", type, id);
    return theStorage().resourceFiles().get(type, id);
}

void DetachResource(Handle resource) {
    journal("DetachResource");
    theStorage().resourceFiles().detach(resource);
}
