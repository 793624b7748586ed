// Templates as files of one folder.
#include "Gradient/TemplateUtil/TemplateStore.h"

#include "Gradient/TemplateUtil/LastDAIndex.h"
#include "Gradient/model/GradientBlock.h"
#include "host/Dialogs.h"
#include "host/TypeCodes.h"

#include <cstring>

namespace {

constexpr OSType kCreator = FourCC("*Kst");
constexpr OSType kResourceType = FourCC("TMPL");
constexpr short kResourceId = 0;
constexpr short kReplaceAlert = 9320;

/// Volume and id of the template folder. The leaf name is that of a file that never exists: resolving a path
/// to it is how the folder's own id is learned.
FSSpec gTemplateSpec{};

/// Makes the resource file current again, at the end of a scope, that is current at its start.
class StCurrentResFile {
  public:
    StCurrentResFile() : mRefNum(CurResFile()) {}
    StCurrentResFile(StCurrentResFile const&) = delete;
    StCurrentResFile& operator=(StCurrentResFile const&) = delete;
    ~StCurrentResFile() { UseResFile(mRefNum); }

  private:
    short mRefNum;
};

OSErr ResolveTemplate(CStr255 const& fileName, FSSpec& spec) {
    return FSMakeFSSpec(gTemplateSpec.vRefNum, gTemplateSpec.parID, fileName, &spec);
}

std::string LeafName(FSSpec const& spec) {
    return {reinterpret_cast<char const*>(spec.name + 1), spec.name[0]};
}

} // namespace

void InitTemplates(CStr255 const& folderName) {
    FSSpec const folder = FindSecondaryPreferencesFolder(folderName, true);
    std::string placeholder = ":";
    placeholder.append(folderName.Text()).append(":JUNK");
    FSMakeFSSpec(folder.vRefNum, folder.parID, placeholder, &gTemplateSpec);
}

void SaveTemplate(Handle data, std::string const& fileName, unsigned long fileType) {
    StCurrentResFile const current;
    FSSpec spec{};
    // A name that cannot be resolved is asked about like one that is taken.
    if (ResolveTemplate(fileName, spec) != kFileNotFoundErr && !Confirm(kReplaceAlert)) {
        return;
    }
    FSpDelete(&spec);
    FSpCreateResFile(&spec, kCreator, static_cast<OSType>(fileType), 0);
    short const file = FSpOpenResFile(&spec, kWritePermission);
    UseResFile(file);
    AddResource(data, kResourceType, kResourceId, "");
    CloseResFile(file);
}

Handle LoadTemplate(std::string const& fileName) {
    StCurrentResFile const current;
    FSSpec spec{};
    if (ResolveTemplate(fileName, spec) != kNoErr) {
        return nullptr;
    }
    short const file = FSpOpenResFile(&spec, kReadPermission);
    UseResFile(file);
    Handle const block = GetResource(kResourceType, kResourceId);
    DetachResource(block);
    CloseResFile(file);
    return block;
}

std::vector<std::string> GetTemplateList(unsigned long fileType) {
    std::vector<std::string> names;
    StOwnedBlock const block(NewHandle(0));
    auto* const list = reinterpret_cast<FSSpec**>(block.get());
    EnumerShell(gTemplateSpec.vRefNum, gTemplateSpec.parID, fileType, list);
    long const last = LastDAIndex(list);
    names.reserve(static_cast<std::size_t>(last + 1));
    for (long index = 0; index <= last; ++index) {
        FSSpec spec;
        std::memcpy(&spec, *block + static_cast<std::size_t>(index) * sizeof spec, sizeof spec);
        names.push_back(LeafName(spec));
    }
    return names;
}

void DeleteTemplate(CStr255 const& fileName) {
    FSSpec spec{};
    if (ResolveTemplate(fileName, spec) == kNoErr) {
        FSpDelete(&spec);
    }
}
