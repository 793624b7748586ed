// Implements host/Dialogs.h.
#include "host/Dialogs.h"

#include "easel/classic/MacRoman.h"
#include "easel/runtime/CFString.h"
#include "easel/runtime/CommandDialog.h"
#include "easel/runtime/DialogOrnaments.h"
#include "easel/runtime/DialogResources.h"
#include "easel/runtime/HostPixels.h"
#include "easel/runtime/Process.h"
#include "easel/runtime/User.h"
#include "host/Files.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <vector>

using easel::runtime::DeletionCommand;
using easel::runtime::DeletionList;
using easel::runtime::Dialog;
using easel::runtime::DialogItem;
using easel::runtime::ItemKind;
using easel::runtime::journal;
using easel::runtime::process;
using easel::runtime::SelectionMode;

namespace {

// What counts as Cancel in a dialog that names no button for it.
constexpr short kUsualCancelItem = 2;

constexpr short kItemNotFound = -5618;
constexpr short kDataNotFound = -30589;
constexpr short kBufferTooSmall = -30585;
constexpr std::int32_t kCommandNotHandled = -9874;

constexpr long kReferenceSize = sizeof(void*);

// Null for a dialog that is not open.
Dialog* dialogOf(DialogRef ref) {
    return process().dialogs().find(ref);
}

const DialogItem* itemOf(DialogRef ref, short number) {
    const Dialog* const dialog = dialogOf(ref);
    return dialog ? dialog->item(number) : nullptr;
}

int toPosition(long value) {
    return static_cast<int>(std::clamp<long>(value, 0, std::numeric_limits<short>::max()));
}

bool isControl(const DialogItem& item) {
    return item.kind == ItemKind::Button || item.kind == ItemKind::Popup || item.kind == ItemKind::Radio;
}

// The dialog itself knows the keys that the standard filter stands for, so there is no event left for it.
bool passEvent(DialogRef, EventRecord*, short*) {
    return false;
}

void drawAndShow(Dialog& dialog) {
    dialog.drawInvalidItems();
    process().dialogs().flushFront();
}

void drawSeparator(DialogRef ref, short number) {
    if (const DialogItem* const item = itemOf(ref, number))
        easel::runtime::drawSeparator(dialogOf(ref)->port(), dialogOf(ref)->screen().theme, item->bounds);
}

// The text of a string object that is given up with this.
std::string taken(CFStringRef string) {
    std::string text = easel::runtime::utf8Of(string);
    CFRelease(string);
    return text;
}

// What the process knows of a list, also where a script that fails ends it.
class OpenList {
  public:
    explicit OpenList(DeletionList& list) { process().setDeletionList(&list); }
    OpenList(const OpenList&) = delete;
    OpenList& operator=(const OpenList&) = delete;
    ~OpenList() { process().setDeletionList(nullptr); }
};

// The names of what is selected in the list that is open, or else of the file that was just found.
std::vector<std::string> namesAskedAbout() {
    std::vector<std::string> names;
    const auto found = process().storage().takeFound();
    if (DeletionList* const list = process().deletionList()) {
        for (const int row : list->selection())
            names.push_back(list->text(row));
    } else if (found) {
        names.push_back(*found);
    }
    return names;
}

} // namespace

const ModalFilterUPP StdDlogFilterUPP = passEvent;

DialogRef TessGetNewDialog(short id, void*, OpaqueWindowPtr*) {
    journal("TessGetNewDialog", id);
    const auto description = easel::runtime::dialogDescription(process().plugin().resources(), id);
    if (!description)
        return nullptr;
    return process()
        .dialogs()
        .add(std::make_unique<Dialog>(*description, easel::runtime::DialogScreen{}, process().ports()))
        .ref();
}

void DisposeDialog(DialogRef ref) {
    journal("DisposeDialog");
    Dialog* dialog = dialogOf(ref);
    if (!dialog)
        return;
    process().user().dialogClosed(*dialog);
    process().dialogs().remove(*dialog);
}

void SetPortDialogPort(DialogRef ref) {
    journal("SetPortDialogPort");
    Dialog* dialog = dialogOf(ref);
    process().ports().makeCurrent(dialog ? &dialog->port() : nullptr);
}

// A dialog's window is known by the same reference as the dialog.
OpaqueWindowPtr* GetDialogWindow(DialogRef dialog) {
    journal("GetDialogWindow");
    return reinterpret_cast<OpaqueWindowPtr*>(dialog);
}

void ModalDialog(ModalFilterUPP filter, short* itemHit) {
    journal("ModalDialog");
    *itemHit = kUsualCancelItem;
    Dialog* dialog = process().dialogs().front();
    if (!dialog)
        return;
    dialog->setStandardKeys(filter == StdDlogFilterUPP ? easel::runtime::StandardKeys::On
                                                       : easel::runtime::StandardKeys::Off);
    process().drag().finish(*dialog);
    drawAndShow(*dialog);
    // Nobody answers any more when the program is quitting, which is a Cancel.
    if (const short hit = process().user().nextHit(*dialog))
        *itemHit = hit;
    else if (const int cancel = dialog->itemWithRole(easel::runtime::ButtonRole::Cancel))
        *itemHit = static_cast<short>(cancel);
}

void UpdateDialog(DialogRef ref, OpaqueRgnHandle*) {
    journal("UpdateDialog");
    // Drawing all marked items draws those in any region.
    if (Dialog* dialog = dialogOf(ref))
        drawAndShow(*dialog);
}

const UserItemUPP UpdateSeparatorUPP = drawSeparator;

UserItemUPP NewUserItemUPP(UserItemUPP procedure) {
    journal("NewUserItemUPP");
    return procedure;
}

void SetUserDrawProc(DialogRef ref, short number, TRect<short>& box, UserItemUPP procedure) {
    journal("SetUserDrawProc", number);
    Dialog* dialog = dialogOf(ref);
    if (!dialog || !dialog->item(number))
        return;
    dialog->setDrawProcedure(number, procedure);
    dialog->setDivider(number, procedure == UpdateSeparatorUPP);
    box = easel::runtime::toHost(dialog->item(number)->bounds);
}

TRect<short> GetDialogItemBounds(DialogRef ref, short number) {
    journal("GetDialogItemBounds", number);
    const DialogItem* item = itemOf(ref, number);
    return item ? easel::runtime::toHost(item->bounds) : TRect<short>{};
}

void InvalDLogItem(DialogRef ref, short number) {
    journal("InvalDLogItem", number);
    if (Dialog* dialog = dialogOf(ref))
        dialog->invalidate(number);
}

void SetDLOGText(DialogRef ref, short number, const CStr255& text) {
    journal("SetDLOGText", number, easel::classic::fromMacRoman(text.Text()));
    if (Dialog* dialog = dialogOf(ref))
        dialog->setText(number, text.Text());
}

void GetDLOGText(DialogRef ref, short number, CStr255& text) {
    journal("GetDLOGText", number);
    const DialogItem* item = itemOf(ref, number);
    text.Assign(item ? item->text : std::string());
}

void SelectDLOGText(DialogRef ref, short number, long start, long end) {
    journal("SelectDLOGText", number, start, end);
    if (Dialog* dialog = dialogOf(ref))
        dialog->selectText(number, {toPosition(start), toPosition(end)});
}

void SetItemCtlValue(DialogRef ref, short number, short value) {
    journal("SetItemCtlValue", number, value);
    if (Dialog* dialog = dialogOf(ref))
        dialog->setValue(number, value);
}

short GetPopMenuSelectedItem(DialogRef ref, short number) {
    journal("GetPopMenuSelectedItem", number);
    const DialogItem* item = itemOf(ref, number);
    return item && item->kind == ItemKind::Popup ? static_cast<short>(item->value) : short{0};
}

short GetDialogItemAsControl(DialogRef ref, short number, ControlRef* control) {
    journal("GetDialogItemAsControl", number);
    const DialogItem* item = itemOf(ref, number);
    if (!item || !isControl(*item)) {
        *control = nullptr;
        return kItemNotFound;
    }
    *control = reinterpret_cast<ControlRef>(const_cast<DialogItem*>(item));
    return kNoErr;
}

short GetControlData(ControlRef control, short part, OSType tag, long size, void* data, long* actualSize) {
    journal("GetControlData", part, tag, size);
    const auto* item = reinterpret_cast<const DialogItem*>(control);
    if (!item || tag != kControlPopupButtonMenuHandleTag || !item->menu)
        return kDataNotFound;
    auto* const menu = reinterpret_cast<OpaqueMenuRef*>(item->menu.get());
    if (actualSize)
        *actualSize = kReferenceSize;
    // Half a reference would be worse than none.
    if (size < kReferenceSize)
        return kBufferTooSmall;
    std::memcpy(data, &menu, kReferenceSize);
    return kNoErr;
}

bool Confirm(short id) {
    journal("Confirm", id);
    auto alert = easel::runtime::alertDescription(process().plugin().resources(), id);
    if (alert)
        alert->about = namesAskedAbout();
    // A plug-in asks the same of a name that no file can have as of one that a file has.
    if (const auto refusal = process().storage().takeRefusal(); alert && refusal)
        alert = easel::runtime::refusal(id, *refusal, "Nothing was saved.");
    // A question that cannot be put is taken as declined.
    return alert && process().user().confirm(*alert) == easel::runtime::Answer::Yes;
}

bool GetColor(TPoint<short>, const unsigned char* prompt, const RGBColor* color, RGBColor* result) {
    const std::string text = easel::classic::fromMacRoman(CStr255::FromPascal(prompt).Text());
    journal("GetColor", text);
    const auto picked = process().user().pickColor(text, *color);
    if (picked)
        *result = *picked;
    return picked.has_value();
}

struct CCarbonDialogBase::State : easel::runtime::CommandDialog {};

CCarbonDialogBase::CCarbonDialogBase() : state_(std::make_unique<State>()) {}

CCarbonDialogBase::~CCarbonDialogBase() = default;

bool CCarbonDialogBase::Run() {
    journal("CCarbonDialogBase::Run");
    // The class, and with it the code of the destructor, may be a plug-in's, which can be gone after this
    // call.
    struct Destroy {
        void operator()(CCarbonDialogBase* dialog) const { delete dialog; }
    };
    const std::unique_ptr<CCarbonDialogBase, Destroy> self(this);
    const auto carryOut = [this](DeletionCommand given) {
        const HICommandExtended command{0, given == DeletionCommand::Ok ? kOKCommand : kCancelCommand};
        if (CanProcessCommand(command))
            DoCommand(command);
    };
    const auto textsOf = [this](const std::vector<int>& rows) { return state_->textsNow(rows); };
    DeletionList list(state_->title, state_->count(), textsOf, state_->mode, carryOut);
    state_->list = &list;
    const OpenList open(list);
    process().user().runDeletion(list);
    return state_->confirmed;
}

bool CCarbonDialogBase::CanProcessCommand(HICommandExtended command) {
    return command.commandID != kOKCommand || (state_->list && state_->list->canConfirm());
}

std::int32_t CCarbonDialogBase::DoCommand(HICommandExtended command) {
    journal("CCarbonDialogBase::DoCommand", command.commandID);
    if (command.commandID != kOKCommand && command.commandID != kCancelCommand)
        return kCommandNotHandled;
    state_->confirmed = command.commandID == kOKCommand;
    if (state_->confirmed)
        DoOKAction();
    else
        DoCancelAction();
    if (state_->list)
        state_->list->close();
    return kNoErr;
}

void CCarbonDialogBase::DoOKAction() {}

void CCarbonDialogBase::DoCancelAction() {}

DeleteDialog::DeleteDialog(CFStringRef title, bool multiple) {
    State& state = DialogState();
    state.title = taken(title);
    state.mode = multiple ? SelectionMode::Several : SelectionMode::One;
    state.describe = [this](long index) { return taken(GetListItemDescription(index)); };
    state.count = [this] { return GetListItemCount(); };
    journal("DeleteDialog", state.title, multiple);
}

DeleteDialog::~DeleteDialog() = default;

void DeleteDialog::DoOKAction() {
    const State& state = DialogState();
    if (!state.list)
        return;
    const std::vector<int>& selection = state.list->selection();
    const easel::classic::HostFiles::ManyChanges many(process().storage().files());
    // A deletion moves those behind it.
    const std::vector<int> lastFirst(selection.rbegin(), selection.rend());
    for (const int row : lastFirst)
        if (const std::optional<long> index = state.find(row))
            DeleteListItem(*index);
}
