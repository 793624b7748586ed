// Asks for the numbers that commands on gradients need.
#pragma once

#include <functional>
#include <optional>

namespace easel::window {

class DialogStack;

// Degrees; empty when cancelled.
std::optional<double> askForAngle(double start, DialogStack& dialogs);

// Lets the user choose a factor for the opacity, 0 to 2. `show` is told each choice as it is made. False when
// cancelled: what was shown is to be taken back.
bool askForOpacity(const std::function<void(double factor)>& show, DialogStack& dialogs);

} // namespace easel::window
