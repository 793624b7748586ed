// Cursors by their resource ids, drawn at the resolution of the screen.
#pragma once

#include "easel/classic/PluginResources.h"

#include <QCursor>

namespace easel::window {

// The cursors of the host's own, by their resource ids: the arrow and the plain one of tools.
inline constexpr long kArrowCursor = 0;
inline constexpr long kPlainToolCursor = 606;

// One of these, or one of the plug-in's resources; an unknown id gives the arrow.
QCursor cursorWithId(long id, const classic::PluginResources& resources, double ratio);

} // namespace easel::window
