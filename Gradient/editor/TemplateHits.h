// Choices in the editor's template popup.
#pragma once

#include "Gradient/editor/EditorState.h"
#include "host/Dialogs.h"

#include <string>

/// An entry was chosen: saves the gradient as a template, deletes templates, or loads one into the gradient.
void HandleTemplateMenuHit(DialogRef dialog, CGradientData& gradient, ActiveStop& active);

/// Stores the gradient under the name, which is without suffix. Nothing is stored if it cannot be put into
/// bytes.
void SaveGradientTemplate(CGradientData const& gradient, std::string const& name);

/// Reads the template that an entry of the popup names into the gradient. A template that is gone leaves the
/// gradient as it was, one that is damaged makes it the default record.
void LoadGradientTemplate(DialogRef dialog, short item, CGradientData& gradient);
