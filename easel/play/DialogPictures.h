// Pictures of what has been drawn in a dialog.
#pragma once

#include "easel/play/Arguments.h"

namespace easel::play {

class Session;

// `picture item N FILE.png` and `picture dialog FILE.png`: the item's bounds or the whole content. Both throw
// PlayError.
void pictureOfItem(Session& session, Arguments& arguments);
void pictureOfDialog(Session& session, Arguments& arguments);

} // namespace easel::play
