// Dialogs that ask for a text and for nothing else.
#pragma once

namespace easel::runtime {

class Dialog;
struct DialogItem;

// The field of such a dialog while it is empty, so that there is nothing to confirm yet; else null. A dialog
// with more than one field, or with anything besides labels and buttons, is none.
const DialogItem* emptyAnswer(const Dialog& dialog);

} // namespace easel::runtime
