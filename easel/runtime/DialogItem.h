// One item of a dialog: what it is, where it lies and what it shows.
#pragma once

#include "easel/paint/pixels/PixelGeometry.h"
#include "easel/runtime/ItemContent.h"
#include "easel/runtime/Menus.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

struct OpaqueDialogPtr;

namespace easel::runtime {

enum class ItemKind { Button, StaticText, EditText, UserDrawn, Popup, Radio };

// How a button is pressed from the keyboard.
enum class ButtonRole { Plain, Default, Cancel };

enum class TextAlignment { Left, Center, Right };

// Draws one user item of a dialog into the current port; given the dialog and the item's number.
using ItemDrawProcedure = void (*)(OpaqueDialogPtr*, short);

// Characters from one position up to but without another; equal ends are a caret.
struct TextSelection {
    int from = 0;
    int to = 0;

    friend bool operator==(const TextSelection&, const TextSelection&) = default;
};

// The most that a text of an item holds, as the length-prefixed strings of the host do.
inline constexpr std::size_t kLongestText = 255;

// Texts are kept in the host's encoding, one byte a character; every such character is one UTF-16 unit as
// well, so positions in them are positions in the text that a desktop shows.
struct DialogItem {
    int number = 0;
    ItemKind kind = ItemKind::StaticText;
    paint::PixelRect bounds;
    std::string text;
    std::string tooltip; // UTF-8; may be empty
    std::string
        accessibleName; // UTF-8; what a screen reader says, which for a drawn item is all there is to say
    bool enabled = true;
    bool divider = false; // a user item that is a line between groups: there is nothing to do with it
    ButtonRole role = ButtonRole::Plain;           // of a button
    TextAlignment alignment = TextAlignment::Left; // of a static text

    TextSelection selection;        // of an edit field
    bool isNumber = false;          // of an edit field: its text is a number with a point, if any
    int value = 0;                  // of a popup (entry shown) or a radio button (1 when set)
    std::shared_ptr<Menu> menu;     // of a popup; never null there
    std::uint64_t menuReported = 0; // the revision of the menu that the observer was last told of

    ItemDrawProcedure draw = nullptr; // of a user item
    bool invalid = false;             // waits to be drawn again
    ItemContent content;              // of a user item: what it shows by now
    bool contentReported = true;      // the observer has been told of it

    // The text in UTF-8.
    std::string shownText() const;
};

// What about an item changed, for those who show it.
enum class ItemChange { Text, Selection, Value, Menu, Invalid, Content };

} // namespace easel::runtime
