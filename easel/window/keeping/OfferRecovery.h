// What happens at the start with drawings that were not saved.
#pragma once

#include "easel/recovery/Journal.h"

#include <functional>
#include <vector>

namespace easel::window {

class DialogStack;

// Asks what is to become of the drawings in the journals until something has been said of each, or the user
// puts it off. `open` shows one and takes its journal over; if it cannot it leaves it and says why.
void offerRecovery(std::vector<recovery::Journal> journals, DialogStack& dialogs,
                   const std::function<bool(recovery::Journal& journal)>& open);

// The journals that no running program has, without those that hold what their files hold.
std::vector<recovery::Journal> journalsToOffer();

} // namespace easel::window
