// The dialog that asks for a template's name.
#include "Gradient/TemplateUtil/TemplateNameDialog.h"

#include "Gradient/ModalDialogs.h"
#include "host/Dialogs.h"
#include "host/Drawing.h"
#include "host/Windows.h"

namespace {

constexpr short kNameDialog = 5206;
constexpr short kNameItem = 4;
constexpr std::size_t kLongestName = 20;

void CutName(DialogRef dialog) {
    CStr255 text;
    GetDLOGText(dialog, kNameItem, text);
    if (text.Length() > kLongestName) {
        text.Delete(kLongestName + 1, text.Length() - kLongestName);
        SetDLOGText(dialog, kNameItem, text);
    }
}

short RunLoop(DialogRef dialog) {
    short item = 0;
    do {
        ModalDialog(StdDlogFilterUPP, &item);
        if (item == kNameItem) {
            CutName(dialog);
        }
    } while (item != kOKItem && item != kCancelItem);
    return item;
}

} // namespace

bool ModalGetTemplateName(std::string& name) {
    StGrafPortSaver const port;
    DialogRef const dialog = TessGetNewDialog(kNameDialog, nullptr, InFrontOfAllWindows());
    if (dialog == nullptr) {
        return false;
    }
    SetPortDialogPort(dialog);
    SetDLOGText(dialog, kNameItem, name);
    SelectWholeText(dialog, kNameItem);
    ShowWindow(GetDialogWindow(dialog));
    bool const confirmed = RunLoop(dialog) == kOKItem;
    if (confirmed) {
        CStr255 text;
        GetDLOGText(dialog, kNameItem, text);
        name = text.Text();
    }
    DisposeDialog(dialog);
    return confirmed && !name.empty();
}
