// The application's own icons.
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

// A line drawing that takes the color of the text beside it and is sharp at any size.
QIcon icon(IconName name);

} // namespace easel::window
