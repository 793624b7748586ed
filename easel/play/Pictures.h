// Pictures of drawing windows.
#pragma once

#include "easel/play/Arguments.h"

namespace easel::play {

class Session;

// `picture FILE.png`: the front drawing window as shown: with the feedback of a drag, and, while the button
// is held, without what is only marked for repainting. Throws PlayError.
void pictureOfWindow(Session& session, Arguments& arguments);

} // namespace easel::play
