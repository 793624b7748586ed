// Looks through a dialog's items.
#include "easel/runtime/TextQuestion.h"

#include "easel/runtime/Dialog.h"

namespace easel::runtime {

const DialogItem* emptyAnswer(const Dialog& dialog) {
    const DialogItem* field = nullptr;
    for (const DialogItem& item : dialog.items()) {
        if (item.kind == ItemKind::Button || item.kind == ItemKind::StaticText)
            continue;
        if (item.kind != ItemKind::EditText || field)
            return nullptr;
        field = &item;
    }
    return field && field->text.empty() ? field : nullptr;
}

} // namespace easel::runtime
