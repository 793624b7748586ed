// Dialogs and alerts as the plug-in's resources describe them.
#pragma once

#include "easel/interface/Alert.h"
#include "easel/interface/Dialog.h"

#include <optional>

namespace easel::host {

// A fresh description, with menus of its own; none if there is no such dialog.
std::optional<DialogDescription> dialogDescription(int id);
std::optional<Alert> alertDescription(int id);

} // namespace easel::host
