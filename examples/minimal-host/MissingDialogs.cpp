// Dialogs and menus, which this host lacks: the editor cannot be opened in it.
#include "Missing.h"
#include "host/Dialogs.h"
#include "host/Menus.h"
#include "host/Windows.h"

// Data, and what virtual tables refer to, has to be there for the module to be loaded at all.
ModalFilterUPP const StdDlogFilterUPP = nullptr;
UserItemUPP const UpdateSeparatorUPP = nullptr;

struct CCarbonDialogBase::State {};

CCarbonDialogBase::CCarbonDialogBase() {
    Missing();
}
CCarbonDialogBase::~CCarbonDialogBase() = default;
bool CCarbonDialogBase::Run() {
    Missing();
}
bool CCarbonDialogBase::CanProcessCommand(HICommandExtended /*command*/) {
    Missing();
}
std::int32_t CCarbonDialogBase::DoCommand(HICommandExtended /*command*/) {
    Missing();
}
void CCarbonDialogBase::DoOKAction() {
    Missing();
}
void CCarbonDialogBase::DoCancelAction() {
    Missing();
}

DeleteDialog::DeleteDialog(__CFString const* /*title*/, bool /*multiple*/) {
    Missing();
}
DeleteDialog::~DeleteDialog() = default;
void DeleteDialog::DoOKAction() {
    Missing();
}

DialogRef TessGetNewDialog(short /*id*/, void* /*storage*/, OpaqueWindowPtr* /*behind*/) {
    Missing();
}
void DisposeDialog(DialogRef /*dialog*/) {
    Missing();
}
void SetPortDialogPort(DialogRef /*dialog*/) {
    Missing();
}
OpaqueWindowPtr* GetDialogWindow(DialogRef /*dialog*/) {
    Missing();
}
void ShowWindow(OpaqueWindowPtr* /*window*/) {
    Missing();
}
void ModalDialog(ModalFilterUPP /*filter*/, short* /*itemHit*/) {
    Missing();
}
void UpdateDialog(DialogRef /*dialog*/, OpaqueRgnHandle* /*region*/) {
    Missing();
}

void SetUserDrawProc(DialogRef /*dialog*/, short /*item*/, TRect<short>& /*box*/, UserItemUPP /*procedure*/) {
    Missing();
}
TRect<short> GetDialogItemBounds(DialogRef /*dialog*/, short /*item*/) {
    Missing();
}
void InvalDLogItem(DialogRef /*dialog*/, short /*item*/) {
    Missing();
}
void SetDLOGText(DialogRef /*dialog*/, short /*item*/, CStr255 const& /*text*/) {
    Missing();
}
void GetDLOGText(DialogRef /*dialog*/, short /*item*/, CStr255& /*text*/) {
    Missing();
}
void SelectDLOGText(DialogRef /*dialog*/, short /*item*/, long /*start*/, long /*end*/) {
    Missing();
}
void SetItemCtlValue(DialogRef /*dialog*/, short /*item*/, short /*value*/) {
    Missing();
}
short GetPopMenuSelectedItem(DialogRef /*dialog*/, short /*item*/) {
    Missing();
}
short GetDialogItemAsControl(DialogRef /*dialog*/, short /*item*/, ControlRef* /*control*/) {
    Missing();
}
short GetControlData(ControlRef /*control*/, short /*part*/, OSType /*tag*/, long /*size*/, void* /*data*/,
                     long* /*actualSize*/) {
    Missing();
}
bool Confirm(short /*id*/) {
    Missing();
}
bool GetColor(TPoint<short> /*where*/, unsigned char const* /*prompt*/, RGBColor const* /*color*/,
              RGBColor* /*result*/) {
    Missing();
}

short CountMenuItems(OpaqueMenuRef* /*menu*/) {
    Missing();
}
void DeleteMenuItem(OpaqueMenuRef* /*menu*/, short /*item*/) {
    Missing();
}
void AppendMenu(OpaqueMenuRef* /*menu*/, CStr255 const& /*text*/) {
    Missing();
}
void SetMenuItemText(OpaqueMenuRef* /*menu*/, short /*item*/, CStr255 const& /*text*/) {
    Missing();
}
void GetMenuItemText(OpaqueMenuRef* /*menu*/, short /*item*/, CStr255& /*text*/) {
    Missing();
}
