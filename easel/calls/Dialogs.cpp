// Dialogs made from resources, run, updated and disposed of, as the host interface names it.
#include "host/Dialogs.h"

#include "easel/paint/Port.h"
#include "easel/runtime/CurrentPort.h"
#include "easel/runtime/DialogResources.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/OpenDialogs.h"
#include "easel/runtime/User.h"
#include "host/Windows.h"

using easel::runtime::Dialog;
using easel::runtime::journal;
using easel::runtime::openDialogs;
using easel::runtime::theHost;

namespace {

constexpr short kOkItem = 1;
constexpr short kCancelItem = 2;

// A dialog's window is known by the same reference as the dialog.
OpaqueWindowPtr* windowOf(DialogRef dialog) {
    return reinterpret_cast<OpaqueWindowPtr*>(dialog);
}
DialogRef dialogOf(OpaqueWindowPtr* window) {
    return reinterpret_cast<DialogRef>(window);
}

// The keys that the standard filter stands for are agreed with the dialog instead, so there is no event left
// for it.
bool passEvent(DialogRef, EventRecord*, short*) {
    return false;
}

void drawAndShow(Dialog& dialog) {
    dialog.drawInvalidItems();
    easel::runtime::flushFrontDialog();
}

} // namespace

ModalFilterUPP const StdDlogFilterUPP = passEvent;

DialogRef TessGetNewDialog(short id, void*, OpaqueWindowPtr*) {
    journal("TessGetNewDialog", id);
    const auto description = easel::runtime::dialogDescription(id);
    if (!description)
        return nullptr;
    return openDialogs().add(std::make_unique<Dialog>(*description, easel::runtime::DialogScreen{})).ref();
}

void DisposeDialog(DialogRef ref) {
    journal("DisposeDialog");
    Dialog* dialog = openDialogs().find(ref);
    if (dialog == nullptr)
        return;
    theHost().user->dialogClosed(*dialog);
    openDialogs().remove(*dialog);
}

void SetPortDialogPort(DialogRef ref) {
    journal("SetPortDialogPort");
    Dialog* dialog = openDialogs().find(ref);
    easel::runtime::setCurrentPort(dialog != nullptr ? &dialog->port() : nullptr);
}

OpaqueWindowPtr* GetDialogWindow(DialogRef dialog) {
    journal("GetDialogWindow");
    return windowOf(dialog);
}

void ShowWindow(OpaqueWindowPtr* window) {
    journal("ShowWindow");
    Dialog* dialog = openDialogs().find(dialogOf(window));
    if (dialog == nullptr || dialog->shown())
        return;
    dialog->show();
    theHost().user->dialogShown(*dialog);
}

void ModalDialog(ModalFilterUPP filter, short* itemHit) {
    journal("ModalDialog");
    *itemHit = kCancelItem;
    Dialog* dialog = openDialogs().front();
    if (dialog == nullptr)
        return;
    const bool standardKeys = filter == StdDlogFilterUPP;
    dialog->setKeyItems(standardKeys ? easel::runtime::KeyItems{kOkItem, kCancelItem}
                                     : easel::runtime::KeyItems{});
    drawAndShow(*dialog);
    // Nobody answers any more when the program is quitting, which is a Cancel.
    if (const short hit = theHost().user->nextHit(*dialog))
        *itemHit = hit;
}

void UpdateDialog(DialogRef ref, OpaqueRgnHandle*) {
    journal("UpdateDialog");
    // Drawing all marked items draws those in any region.
    if (Dialog* dialog = openDialogs().find(ref))
        drawAndShow(*dialog);
}

void SetIDCursor(long cursorId) {
    journal("SetIDCursor", cursorId);
    theHost().user->setDialogCursor(cursorId);
}
