// The keys that work on the drawn items of a dialog, for those who carry them out and those who list them.
#pragma once

#include "easel/runtime/DialogItem.h"
#include "easel/runtime/MouseGesture.h"

#include <QString>

#include <optional>
#include <vector>

namespace easel::window {

// What can be done in a drawn item, which is told by what it shows.
enum class ItemSort { Plain, Ramp, Preview, Swatch };
ItemSort sortOf(const runtime::DialogItem& item);

struct ItemKey {
    Qt::Key key = Qt::Key_unknown;
    bool shift = false;
};

struct ItemKeyRow {
    ItemSort sort = ItemSort::Plain;
    std::vector<Qt::Key> keys;
    QString text;
    // What the mouse would do in the item; nothing if that cannot be done now. Null if the key stands for a
    // click on the dialog's swatch.
    using Gesture = std::optional<runtime::MouseGesture> (*)(const runtime::DialogItem&, const ItemKey&);
    Gesture gesture = nullptr;
};

// In the order in which they are to be listed.
std::vector<ItemKeyRow> itemKeyRows();

// The row that a key stands in; nothing for a key that does nothing in such an item.
std::optional<ItemKeyRow> rowOf(ItemSort sort, const ItemKey& key);

} // namespace easel::window
