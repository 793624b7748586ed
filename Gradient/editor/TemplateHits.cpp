// Choices in the editor's template popup.
#include "Gradient/editor/TemplateHits.h"

#include "Gradient/TemplateUtil/DeleteTemplateDialog.h"
#include "Gradient/TemplateUtil/TemplateMenu.h"
#include "Gradient/TemplateUtil/TemplateNameDialog.h"
#include "Gradient/TemplateUtil/TemplateStore.h"
#include "Gradient/editor/EditorItems.h"
#include "Gradient/model/GradientBlock.h"
#include "host/Menus.h"

namespace {

constexpr short kSaveEntry = 1;
constexpr short kDeleteEntry = 2;
constexpr char const* kSuffix = ".GRD";

void RebuildPopup(DialogRef dialog) {
    BuildTemplateMenu(GetDialogMenu(dialog, kTemplateItem), kTemplateFileType);
    ResetTemplatePopup(dialog);
}

} // namespace

void HandleTemplateMenuHit(DialogRef dialog, CGradientData& gradient, ActiveStop& active) {
    short const entry = GetPopMenuSelectedItem(dialog, kTemplateItem);
    switch (entry) {
    case kSaveEntry:
        // Declining to name a template leaves the popup as it is.
        if (std::string name; ModalGetTemplateName(name)) {
            SaveGradientTemplate(gradient, name);
            RebuildPopup(dialog);
        }
        break;
    case kDeleteEntry:
        ModalDeleteTemplate(kTemplateFileType);
        RebuildPopup(dialog);
        break;
    case kNoTemplateEntry:
        break;
    default:
        LoadGradientTemplate(dialog, entry, gradient);
        // Loading may have replaced every stop.
        active = gradient.ColorList().begin();
        ShowActiveStop(dialog, gradient, active);
        break;
    }
}

void SaveGradientTemplate(CGradientData const& gradient, std::string const& name) {
    StOwnedBlock const block(MakeGradientData(gradient));
    if (block != nullptr) {
        SaveTemplate(block.get(), name + kSuffix, kTemplateFileType);
    }
}

void LoadGradientTemplate(DialogRef dialog, short item, CGradientData& gradient) {
    CStr255 fileName;
    GetMenuItemText(GetDialogMenu(dialog, kTemplateItem), item, fileName);
    StOwnedBlock const block(LoadTemplate(fileName.Text()));
    if (block != nullptr) {
        ReadGradient(block.get(), gradient);
    }
}
