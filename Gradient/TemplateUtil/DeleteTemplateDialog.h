// The dialog that lists templates for deletion.
#pragma once

#include "host/Dialogs.h"

#include <cstdint>

/// Lets the user delete templates of that file type.
void ModalDeleteTemplate(unsigned long fileType);

/// The list of the stored templates. It keeps no list of its own: every question goes to the folder.
class CDeleteTemplateDialog final : public DeleteDialog {
  public:
    explicit CDeleteTemplateDialog(unsigned long fileType);
    ~CDeleteTemplateDialog() override = default;

    /// Asks before OK is carried out; declining keeps the dialog open.
    std::int32_t DoCommand(HICommandExtended command) override;
    long GetListItemCount() override;
    CFStringRef GetListItemDescription(long index) override;
    void DeleteListItem(long index) override;

  private:
    std::uint32_t mFileType;
};
