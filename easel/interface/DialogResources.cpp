// Dialogs and alerts of the plug-in that is loaded.
#include "easel/interface/DialogResources.h"

namespace easel::host {

std::optional<DialogDescription> dialogDescription(int) {
    return std::nullopt;
}

std::optional<Alert> alertDescription(int) {
    return std::nullopt;
}

} // namespace easel::host
