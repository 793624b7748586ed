// Cursors by their resource ids, drawn at the resolution of the screen.
#pragma once

#include <QCursor>

namespace easel::window {

// 0 is the arrow, 606 the host's plain tool cursor, others come from the plug-in's resources; an unknown id
// gives the arrow.
QCursor cursorWithId(long id, double ratio);

} // namespace easel::window
