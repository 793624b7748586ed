// The items of dialogs: bounds, drawing procedures, texts, values and controls, as the host interface names
// them.
#include "host/Dialogs.h"

#include "easel/classic/MacRoman.h"
#include "easel/paint/Port.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/OpenDialogs.h"
#include "easel/runtime/ThemeColor.h"

#include <algorithm>
#include <cstring>
#include <limits>

using easel::runtime::Dialog;
using easel::runtime::DialogItem;
using easel::runtime::ItemKind;
using easel::runtime::journal;
using easel::runtime::openDialogs;

namespace {

constexpr short kNoErr = 0;
constexpr short kItemNotFound = -5618;
constexpr short kDataNotFound = -30589;
constexpr short kBufferTooSmall = -30585;

constexpr long kReferenceSize = sizeof(void*);

const DialogItem* itemOf(DialogRef ref, short number) {
    Dialog* dialog = openDialogs().find(ref);
    return dialog != nullptr ? dialog->item(number) : nullptr;
}

TRect<short> toHost(const easel::paint::PixelRect& rect) {
    return {static_cast<short>(rect.top), static_cast<short>(rect.left), static_cast<short>(rect.bottom),
            static_cast<short>(rect.right)};
}

int toPosition(long value) {
    return static_cast<int>(std::clamp<long>(value, 0, std::numeric_limits<short>::max()));
}

bool isControl(const DialogItem& item) {
    return item.kind == ItemKind::Button || item.kind == ItemKind::Popup || item.kind == ItemKind::Radio;
}

void drawSeparator(DialogRef ref, short number) {
    Dialog* dialog = openDialogs().find(ref);
    const DialogItem* item = itemOf(ref, number);
    if (item == nullptr)
        return;
    easel::paint::Port& port = dialog->port();
    const easel::paint::PortState saved = port.state();
    port.state().pen = {};
    port.state().foreground = easel::runtime::portColorOf(dialog->screen().theme.separator);
    const int middle = (item->bounds.top + item->bounds.bottom) / 2;
    port.paintRect({middle, item->bounds.left, middle + 1, item->bounds.right});
    port.state() = saved;
}

} // namespace

UserItemUPP const UpdateSeparatorUPP = drawSeparator;

UserItemUPP NewUserItemUPP(UserItemUPP procedure) {
    journal("NewUserItemUPP");
    return procedure;
}

void SetUserDrawProc(DialogRef ref, short number, TRect<short>& box, UserItemUPP procedure) {
    journal("SetUserDrawProc", number);
    Dialog* dialog = openDialogs().find(ref);
    if (dialog == nullptr || dialog->item(number) == nullptr)
        return;
    dialog->setDrawProcedure(number, procedure);
    box = toHost(dialog->item(number)->bounds);
}

TRect<short> GetDialogItemBounds(DialogRef ref, short number) {
    journal("GetDialogItemBounds", number);
    const DialogItem* item = itemOf(ref, number);
    return item != nullptr ? toHost(item->bounds) : TRect<short>{};
}

void InvalDLogItem(DialogRef ref, short number) {
    journal("InvalDLogItem", number);
    if (Dialog* dialog = openDialogs().find(ref))
        dialog->invalidate(number);
}

void SetDLOGText(DialogRef ref, short number, CStr255 const& text) {
    journal("SetDLOGText", number, easel::classic::fromMacRoman(text.Text()));
    if (Dialog* dialog = openDialogs().find(ref))
        dialog->setText(number, text.Text());
}

void GetDLOGText(DialogRef ref, short number, CStr255& text) {
    journal("GetDLOGText", number);
    const DialogItem* item = itemOf(ref, number);
    text.Assign(item != nullptr ? item->text : std::string());
}

void SelectDLOGText(DialogRef ref, short number, long start, long end) {
    journal("SelectDLOGText", number, start, end);
    if (Dialog* dialog = openDialogs().find(ref))
        dialog->selectText(number, {toPosition(start), toPosition(end)});
}

void SetItemCtlValue(DialogRef ref, short number, short value) {
    journal("SetItemCtlValue", number, value);
    if (Dialog* dialog = openDialogs().find(ref))
        dialog->setValue(number, value);
}

short GetPopMenuSelectedItem(DialogRef ref, short number) {
    journal("GetPopMenuSelectedItem", number);
    const DialogItem* item = itemOf(ref, number);
    return item != nullptr && item->kind == ItemKind::Popup ? static_cast<short>(item->value) : short{0};
}

short GetDialogItemAsControl(DialogRef ref, short number, ControlRef* control) {
    journal("GetDialogItemAsControl", number);
    const DialogItem* item = itemOf(ref, number);
    if (item == nullptr || !isControl(*item)) {
        *control = nullptr;
        return kItemNotFound;
    }
    *control = reinterpret_cast<ControlRef>(const_cast<DialogItem*>(item));
    return kNoErr;
}

short GetControlData(ControlRef control, short part, OSType tag, long size, void* data, long* actualSize) {
    journal("GetControlData", part, tag, size);
    const auto* item = reinterpret_cast<const DialogItem*>(control);
    if (item == nullptr || tag != kControlPopupButtonMenuHandleTag || item->menu == nullptr)
        return kDataNotFound;
    auto* const menu = reinterpret_cast<OpaqueMenuRef*>(item->menu.get());
    if (actualSize != nullptr)
        *actualSize = kReferenceSize;
    // Half a reference would be worse than none.
    if (size < kReferenceSize)
        return kBufferTooSmall;
    std::memcpy(data, &menu, kReferenceSize);
    return kNoErr;
}
