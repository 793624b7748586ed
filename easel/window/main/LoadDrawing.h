// Reads a drawing while the window stays alive.
#pragma once

#include "easel/files/KnownFile.h"
#include "easel/svg/Document.h"

class QString;
class QWidget;

namespace easel::recovery {
class Journal;
}

namespace easel::window {

struct Interaction;

struct LoadedDrawing {
    drawing::Drawing drawing;
    files::KnownFile file; // as it was when it was read
};

// What takes longer than half a second shows its progress and can be cancelled.
files::Result<LoadedDrawing> loadDrawing(const QString& file, Interaction& interaction, QWidget* over);

// The same of what a journal keeps. The drawing is unsaved, and its own file is the one that it came from,
// which counts as changed by somebody else if that happened after the drawing was kept.
files::Result<LoadedDrawing> loadKept(const recovery::Journal& journal, Interaction& interaction,
                                      QWidget* over);

} // namespace easel::window
