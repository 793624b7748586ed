// The editor's items: their numbers, and what is set and refreshed for all of them.
#pragma once

#include "Gradient/editor/EditorState.h"
#include "host/Dialogs.h"

inline constexpr short kEditorDialog = 5000;

inline constexpr short kRampItem = 4;
inline constexpr short kPositionItem = 5;
inline constexpr short kColorItem = 6;
inline constexpr short kPreviewItem = 7;
inline constexpr short kUpperSeparatorItem = 8;
inline constexpr short kTemplateItem = 9;
inline constexpr short kLinearItem = 10;
inline constexpr short kRadialItem = 11;
inline constexpr short kLowerSeparatorItem = 12;

/// The entry of the template popup that it shows when no template is chosen.
inline constexpr short kNoTemplateEntry = 4;

/// Called after every change that enabling of items could depend on. Every item keeps the state that its
/// resource gives it, so this does nothing; it is kept as the one place where rules would go.
void EnableAppropriateControls(DialogRef dialog, CGradientData& gradient);

/// Marks ramp, preview and color swatch for redrawing.
void InvalUserItems(DialogRef dialog);

/// The menu of a popup item; null if it has none.
OpaqueMenuRef* GetDialogMenu(DialogRef dialog, short item);

/// Shows no template in the popup.
void ResetTemplatePopup(DialogRef dialog);

/// Sets the radio buttons to the gradient's kind; neither for a kind that is not linear or radial.
void ShowKind(DialogRef dialog, CGradientData const& gradient);

/// Shows the active stop's position, selected, and has everything redrawn, after a stop became active that
/// was not.
void ShowActiveStop(DialogRef dialog, CGradientData& gradient, ActiveStop& active);
