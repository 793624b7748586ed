// Reads a drawing while the window stays alive.
#pragma once

#include "easel/svg/Document.h"

class QString;
class QWidget;

namespace easel::window {

struct Interaction;

// What takes longer than half a second shows its progress and can be cancelled.
files::Result<drawing::Drawing> loadDrawing(const QString& file, Interaction& interaction, QWidget* over);

} // namespace easel::window
