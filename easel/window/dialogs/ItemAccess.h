// What assistive technology is told of the drawn items of a dialog, and what it can do there.
#pragma once

namespace easel::window {

// From then on every user item and radio button has its names, roles, values and actions. To be called once.
void installItemAccess();

} // namespace easel::window
