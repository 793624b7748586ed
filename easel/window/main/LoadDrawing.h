// Reads a drawing while the window stays alive.
#pragma once

#include "easel/svg/Document.h"

class QString;
class QWidget;

namespace easel::window {

class DesktopUser;

// What takes longer than half a second shows its progress and can be cancelled.
svg::ReadResult loadDrawing(const QString& file, DesktopUser& user, QWidget* over);

} // namespace easel::window
