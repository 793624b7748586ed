// The dialog that lists templates for deletion.
#include "Gradient/TemplateUtil/DeleteTemplateDialog.h"

#include "Gradient/TemplateUtil/TemplateStore.h"

#include <string>
#include <vector>

namespace {

constexpr short kDialogStrings = 9320;
constexpr short kTitleString = 1;
constexpr short kDeleteAlert = 9321;

/// True if the list has an item of that index. The comparison is in 32 bits without a sign, so that a
/// negative index is beyond the end. The folder may have been emptied since the dialog last asked for the
/// count, hence the first test.
bool IsListed(long index, std::vector<std::string> const& names) {
    return !names.empty() &&
           static_cast<std::uint32_t>(index) <= static_cast<std::uint32_t>(names.size()) - 1;
}

} // namespace

void ModalDeleteTemplate(unsigned long fileType) {
    // The host destroys the dialog before Run returns.
    (new CDeleteTemplateDialog(fileType))->Run(); // NOLINT(cppcoreguidelines-owning-memory)
}

CDeleteTemplateDialog::CDeleteTemplateDialog(unsigned long fileType)
    : DeleteDialog(GetIndString(kDialogStrings, kTitleString).CreateCopy(), true),
      mFileType(static_cast<std::uint32_t>(fileType)) {}

std::int32_t CDeleteTemplateDialog::DoCommand(HICommandExtended command) {
    if (command.commandID == kOKCommand && !Confirm(kDeleteAlert)) {
        return 0;
    }
    return CCarbonDialogBase::DoCommand(command);
}

long CDeleteTemplateDialog::GetListItemCount() {
    return static_cast<long>(GetTemplateList(mFileType).size());
}

CFStringRef CDeleteTemplateDialog::GetListItemDescription(long index) {
    std::vector<std::string> const names = GetTemplateList(mFileType);
    if (!IsListed(index, names)) {
        return nullptr;
    }
    CStr255 const name(names[static_cast<std::uint32_t>(index)]);
    return CFStringCreateWithPascalString(kCFAllocatorDefault, name.PascalBytes(), kCFStringEncodingMacRoman);
}

void CDeleteTemplateDialog::DeleteListItem(long index) {
    std::vector<std::string> const names = GetTemplateList(mFileType);
    if (IsListed(index, names)) {
        DeleteTemplate(names[static_cast<std::uint32_t>(index)]);
    }
}
