// Dialogs and alerts as the plug-in's resources describe them.
#pragma once

#include "easel/classic/PluginResources.h"
#include "easel/runtime/Alert.h"
#include "easel/runtime/Dialog.h"

#include <optional>

namespace easel::runtime {

// A fresh description, with menus of its own; none if there is no such dialog.
std::optional<DialogDescription> dialogDescription(const classic::PluginResources& resources, int id);
std::optional<Alert> alertDescription(const classic::PluginResources& resources, int id);

} // namespace easel::runtime
