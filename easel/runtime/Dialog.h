// The model of an open dialog: its items, the keyboard focus, the hits that wait to be answered and the port
// behind it.
#pragma once

#include "easel/paint/pixels/PixelGeometry.h"
#include "easel/runtime/DialogItem.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace easel::paint {
class Port;
}

namespace easel::runtime {

class Ports;

// What a dialog is built from.
struct DialogDescription {
    int id = 0;
    std::string title; // UTF-8
    int width = 0;     // of the content area, in dialog pixels
    int height = 0;
    std::vector<DialogItem> items; // numbered from 1 without a gap
};

// Colors are 0xRRGGBB.
struct DialogTheme {
    std::uint32_t background = 0xf2f2f2;
    std::uint32_t separator = 0xc8c8c8;
    std::uint32_t shadow = 0xb0b0b0;
    // What erasing leaves. Plug-ins draw black marks on it, so it is light on dark desktops too.
    std::uint32_t erased = 0xf2f2f2;
    // Of the line around swatches, where the black one that they have cannot be told from the background.
    std::optional<std::uint32_t> rim = {};

    friend bool operator==(const DialogTheme&, const DialogTheme&) = default;
};

// How the screen shows a dialog: pixels of the screen a dialog pixel, and the desktop's colors.
struct DialogScreen {
    double scale = 1.0;
    DialogTheme theme;

    friend bool operator==(const DialogScreen&, const DialogScreen&) = default;
};

// Told about every change of a dialog that can be seen.
class DialogObserver {
  public:
    virtual ~DialogObserver() = default;
    virtual void itemChanged(int item, ItemChange change) = 0;
    virtual void focusChanged() = 0;
    virtual void shownChanged() = 0;
    // Something was drawn within these dialog pixels; the image holds it already.
    virtual void pixelsDrawn(const paint::PixelRect& area) = 0;
};

// What became of a keystroke or an edit.
enum class EditOutcome { Accepted, Refused };

enum class DialogKey { Enter, Escape };

// Whether Enter and Escape stand for the default and the cancel button.
enum class StandardKeys { Off, On };

class Dialog {
  public:
    // Its port joins the ports, which outlive the dialog.
    Dialog(DialogDescription description, const DialogScreen& screen, Ports& ports);
    ~Dialog();
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    int id() const { return id_; }
    const std::string& title() const { return title_; }
    int width() const { return width_; }
    int height() const { return height_; }
    const std::vector<DialogItem>& items() const { return items_; }
    // Null when there is no item of that number.
    const DialogItem* item(int number) const;
    // The item with the lowest number whose bounds hold the point, or null.
    const DialogItem* itemAt(paint::PixelPoint point) const;
    // The number of the first item that has the role, or 0.
    int itemWithRole(ButtonRole role) const;
    // The item with the keyboard focus, or 0. A dialog opens with its first edit field focused.
    int focus() const { return focus_; }
    bool shown() const { return shown_; }

    // At most one observer; null takes it away.
    void setObserver(DialogObserver* observer) { observer_ = observer; }

    // --- The person in front of it. Whatever counts as a hit is queued for the loop that runs the dialog.
    // One character (a Unicode code point) typed into the focused edit field, in place of the selection; a
    // hit. Refused, with nothing changed, when the host's encoding lacks it, the field is full or no edit
    // field has the focus.
    EditOutcome typeCharacter(char32_t character);
    // Takes away the selection, or the character before the caret; a hit either way. Refused when no edit
    // field has the focus.
    EditOutcome eraseBackward();
    // The same towards the end of the text.
    EditOutcome eraseForward();
    // Replaces the whole text of an edit field at once; one hit. Refused when a character cannot be encoded.
    EditOutcome enterText(int item, const std::string& utf8);
    // Selects characters, as the arrow keys and the mouse do; no hit.
    void selectText(int item, TextSelection selection);
    // While the keyboard is at work in an item, it stays there, whatever the program selects meanwhile.
    void holdFocus(bool hold) { focusHeld_ = hold; }
    // Chooses an entry of a popup; a hit. Refused when the entry cannot be selected.
    EditOutcome chooseEntry(int item, int entry);
    // Moves the keyboard focus, selecting all of an edit field; no hit. 0 takes the focus away, and a divider
    // leaves it where it is.
    void setFocus(int item);
    // A press in a user item or an edit field, or a click on a control. Disabled items are not hit.
    void hit(int item);
    // A key that stands for an item, if who runs the dialog has said so.
    void pressKey(DialogKey key);
    std::optional<int> takeHit();
    bool hasHit() const { return !hits_.empty(); }

    // --- The host's operations. Unknown item numbers are ignored; texts are in the host's encoding.
    void setText(int item, std::string text);
    void setValue(int item, int value);
    void setDrawProcedure(int item, ItemDrawProcedure procedure);
    // From then on the user item is a divider, or no longer one.
    void setDivider(int item, bool divider);
    void setStandardKeys(StandardKeys keys) { standardKeys_ = keys; }
    void invalidate(int item);
    void show();

    // --- The port and what is drawn in it.
    const DialogScreen& screen() const { return screen_; }
    // Makes a port of the new resolution and invalidates every drawn item.
    void setScreen(const DialogScreen& screen);
    paint::Port& port() { return *port_; }
    const paint::Port& port() const { return *port_; }
    bool hasInvalidItems() const;
    // Calls the draw procedures of the invalid items, in the order of their numbers, with this dialog's port
    // current.
    void drawInvalidItems();
    // What the user item at a place of the dialog shows, to be changed as it is drawn; null if there is none.
    ItemContent* contentAt(paint::PixelPoint place);
    // A rectangle was erased, or painted with one color.
    void erased(const paint::PixelRect& area);
    void painted(const paint::PixelRect& area, const drawing::Rgb16& color);
    // Reports drawn pixels, changed menus and what items show now to the observer, however many changes there
    // were since the last call. Whoever waits for input calls it before waiting.
    void flush();

    // The same dialog as the interface names it.
    OpaqueDialogPtr* ref() { return reinterpret_cast<OpaqueDialogPtr*>(this); }
    static Dialog& from(OpaqueDialogPtr* ref) { return *reinterpret_cast<Dialog*>(ref); }

  private:
    DialogItem* find(int number);
    DialogItem* itemOfKind(int number, ItemKind kind);
    DialogItem* focusedField() { return itemOfKind(focus_, ItemKind::EditText); }
    void replaceSelection(DialogItem& field, const std::string& replacement);
    void moveFocus(int item);
    void changed(int item, ItemChange change);
    void invalidateDrawnItems();

    int id_;
    std::string title_;
    int width_;
    int height_;
    std::vector<DialogItem> items_;
    int focus_ = 0;
    bool focusHeld_ = false;
    bool shown_ = false;
    std::deque<int> hits_;
    StandardKeys standardKeys_ = StandardKeys::Off;
    DialogScreen screen_;
    Ports& ports_;
    std::unique_ptr<paint::Port> port_;
    DialogObserver* observer_ = nullptr;
};

} // namespace easel::runtime
