// What the plug-in's modal dialogs have in common.
#pragma once

#include "host/Dialogs.h"

/// The two buttons that close a dialog.
inline constexpr short kOKItem = 1;
inline constexpr short kCancelItem = 2;

/// Selects the whole text of an edit item.
inline void SelectWholeText(DialogRef dialog, short item) {
    constexpr long kBeyondAnyText = 32767;
    SelectDLOGText(dialog, item, 0, kBeyondAnyText);
}
