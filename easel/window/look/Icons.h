// The application's own icons: line drawings that take the color of the text beside them and are sharp at any
// size.
#pragma once

#include <QIcon>

namespace easel::window {

enum class IconName {
    New,
    Open,
    Save,
    Undo,
    Redo,
    ZoomIn,
    ZoomOut,
    Fit,
    ActualSize,
    Grid,
    Magnet,
    Select,
    Options,
};

QIcon icon(IconName name);

} // namespace easel::window
