// Dialogs on screens that are smaller than they are.
#pragma once

#include <QSize>

class QDialog;

namespace easel::window {

// About what a window manager puts around a window.
inline constexpr QSize kWindowFrame{16, 48};

// Makes a dialog no larger than the screen lets a window be. One that has a fixed size scrolls then.
void fitToScreen(QDialog& dialog);

} // namespace easel::window
