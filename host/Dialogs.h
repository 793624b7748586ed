// Modal dialogs built from resources, their items, alerts, the color picker and the list dialog for deleting.
//
// Items are numbered from 1 as in the dialog's resource. Calls on an item that is not there, or not of the
// right kind, do nothing and read as zero or empty.
#pragma once

#include "host/Drawing.h"
#include "host/Geometry.h"
#include "host/Gradient.h"
#include "host/Strings.h"
#include "host/TypeCodes.h"

#include <cstdint>
#include <memory>

#pragma GCC visibility push(default)

/// A dialog, a window, a control, a menu; all the host's.
struct OpaqueDialogPtr;
struct OpaqueWindowPtr;
struct OpaqueControlRef;
struct OpaqueMenuRef;
struct EventRecord;

using DialogRef = OpaqueDialogPtr*;
using ControlRef = OpaqueControlRef*;

/// The place in front of all windows: a reference with every bit set.
[[nodiscard]] inline OpaqueWindowPtr* InFrontOfAllWindows() {
    return reinterpret_cast<OpaqueWindowPtr*>(~std::uintptr_t{0}); // NOLINT(performance-no-int-to-ptr)
}

/// Makes the dialog with that resource id, hidden. `storage` is null: the host finds its own. Null if there
/// is no such dialog. The caller ends it with DisposeDialog. Dialogs can be open on top of each other.
[[nodiscard]] DialogRef TessGetNewDialog(short id, void* storage, OpaqueWindowPtr* behind);
void DisposeDialog(DialogRef dialog);
/// Makes the dialog's port the current one. It stays so while the dialog runs, hits included; the port that
/// was current before is put back by the caller.
void SetPortDialogPort(DialogRef dialog);
[[nodiscard]] OpaqueWindowPtr* GetDialogWindow(DialogRef dialog);

/// A filter that sees the events of a modal dialog first; true if it dealt with one and set the item hit.
using ModalFilterUPP = bool (*)(DialogRef dialog, EventRecord* event, short* itemHit);
/// The host's filter: Return and Enter stand for the dialog's default button, Escape for its cancel button,
/// as its resource names them. Plug-ins hand it to ModalDialog and do not call it, so a host that knows these
/// keys by other means may give it any value.
extern ModalFilterUPP const StdDlogFilterUPP;
/// Runs the front dialog until an enabled item is hit and gives the item's number. A hit is:
/// - of a button, a press and release in it, or its key;
/// - of a radio button, a press and release in it. Its value stays; the plug-in sets it;
/// - of a popup, the choice of an entry, which it then shows, also if it is the one that it showed before;
/// - of a user item, the press, with the button still held;
/// - of an edit item, each keystroke into it and each click in it, once the field has taken it, whether or
///   not its text has changed. Keys that stand for a button or move the focus are no keystrokes into it.
///
/// Whether a static item can be hit is the host's choice. Hits are given one by one, in the order in which
/// they happened. The item is 2 if nobody can answer the dialog any more, as when the program is ending.
void ModalDialog(ModalFilterUPP filter, short* itemHit);
/// Draws the parts of the dialog that are marked for redrawing and lie in the region; null means all of them.
void UpdateDialog(DialogRef dialog, OpaqueRgnHandle* region);

/// The procedure that draws a user item on the current port, which is the dialog's. Plug-ins also call their
/// own while they track the mouse; what is drawn is then to be seen at the next call that waits.
using UserItemUPP = void (*)(DialogRef dialog, short item);
/// The handle of a drawing procedure: the procedure itself. Called while a module is being loaded.
[[nodiscard]] UserItemUPP NewUserItemUPP(UserItemUPP procedure);
/// Draws a thin line along the middle of its item.
extern UserItemUPP const UpdateSeparatorUPP;
/// Installs a user item's drawing procedure and gives the item's bounds in `box`.
void SetUserDrawProc(DialogRef dialog, short item, TRect<short>& box, UserItemUPP procedure);

/// An item's bounds in the dialog's local pixels.
[[nodiscard]] TRect<short> GetDialogItemBounds(DialogRef dialog, short item);
/// Marks an item for redrawing, which ModalDialog and UpdateDialog do, and a call that waits for the mouse
/// may do.
void InvalDLogItem(DialogRef dialog, short item);

/// Texts of edit items. Setting a text is not a hit of the item, nor is SelectDLOGText.
void SetDLOGText(DialogRef dialog, short item, CStr255 const& text);
void GetDLOGText(DialogRef dialog, short item, CStr255& text);
/// Gives an edit item the keyboard and selects its characters from `start` up to, not including, `end`; 0 to
/// 32767 selects all. A host may leave the keyboard in a user item in which keys stand for the mouse.
void SelectDLOGText(DialogRef dialog, short item, long start, long end);

/// Sets a control item: 0 or 1 for a radio button, the item shown for a popup. A popup takes every number up
/// to the item count that its menu has at that time.
void SetItemCtlValue(DialogRef dialog, short item, short value);
/// The menu item that a popup shows.
[[nodiscard]] short GetPopMenuSelectedItem(DialogRef dialog, short item);
/// The control of an item; null if it has none. The result is 0 or an error.
short GetDialogItemAsControl(DialogRef dialog, short item, ControlRef* control);
/// Tag of a popup's menu, as an OpaqueMenuRef*. Every dialog has a menu of its own for each popup, made from
/// the resource when the dialog is and gone with it; a reference to it is good for as long.
inline constexpr OSType kControlPopupButtonMenuHandleTag = FourCC("mhan");
/// Reads a piece of a control's data: at most `size` bytes into `data`, and the size it has into `actualSize`
/// unless that is null. The result is 0 or an error; `data` is then left as it was.
short GetControlData(ControlRef control, short part, OSType tag, long size, void* data, long* actualSize);

/// Shows the confirmation alert with that resource id; true if the user confirms.
[[nodiscard]] bool Confirm(short id);

/// Lets the user pick a color. `where` is the place on the screen, (0, 0) for the host's choice; `prompt` is
/// length prefixed. True if the user confirms; only then is `result` set.
[[nodiscard]] bool GetColor(TPoint<short> where, unsigned char const* prompt, RGBColor const* color,
                            RGBColor* result);

/// A command given to a dialog: a button was pressed or a key that stands for it.
struct HICommandExtended {
    std::uint32_t attributes = 0;
    std::uint32_t commandID = 0;
};
inline constexpr std::uint32_t kOKCommand = FourCC("ok  ");
inline constexpr std::uint32_t kCancelCommand = FourCC("not!");

/// Base of dialogs that are driven by commands.
///
/// Made with `new`, run once, and destroyed by the host: Run() destroys the object, whatever its class,
/// before it returns or throws, so that nothing of a plug-in's class is left behind when the plug-in is
/// unloaded.
class CCarbonDialogBase {
  public:
    CCarbonDialogBase(CCarbonDialogBase const&) = delete;
    CCarbonDialogBase& operator=(CCarbonDialogBase const&) = delete;

  protected:
    virtual ~CCarbonDialogBase();

  public:
    /// Runs the dialog modally until it closes; true if it was closed with OK. The object is gone afterwards.
    bool Run();

    /// True if the command may be given now.
    virtual bool CanProcessCommand(HICommandExtended command);
    /// Carries a command out: OK calls DoOKAction and closes the dialog, Cancel calls DoCancelAction and
    /// closes it. Returns 0, or an error for a command it does not know.
    virtual std::int32_t DoCommand(HICommandExtended command);
    virtual void DoOKAction();
    virtual void DoCancelAction();

    struct State;
    /// The state, for the host's own use.
    [[nodiscard]] State& DialogState() { return *state_; }

  protected:
    CCarbonDialogBase();

  private:
    std::unique_ptr<State> state_;
};

/// A dialog that lists things and deletes the selected ones on OK, from the last to the first, since each
/// deletion may renumber those behind it.
class DeleteDialog : public CCarbonDialogBase {
  public:
    /// Deletes the selected items through DeleteListItem.
    void DoOKAction() override;

    /// Number of items in the list.
    virtual long GetListItemCount() = 0;
    /// The text of an item, from index 0, as a string object that the caller owns; null if there is no such
    /// item. Never asked for while the count is 0.
    virtual CFStringRef GetListItemDescription(long index) = 0;
    /// Deletes an item. Never called while the count is 0.
    virtual void DeleteListItem(long index) = 0;

  protected:
    /// Takes over the caller's reference to `title`. `multiple` true lets several items be selected.
    DeleteDialog(__CFString const* title, bool multiple);
    ~DeleteDialog() override;
};

#pragma GCC visibility pop
