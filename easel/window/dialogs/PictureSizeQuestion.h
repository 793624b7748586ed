// The question how large a picture of a drawing is to be.
#pragma once

#include <QSizeF>

#include <optional>

namespace easel::window {

class DialogStack;

// Asks for pixels or for a resolution, each of which follows the others, and begins with what was answered
// last. Gives pixels per drawing unit, of which there are 96 to the inch; nothing if the user cancels.
std::optional<double> askForPictureScale(QSizeF drawing, DialogStack& dialogs);

} // namespace easel::window
