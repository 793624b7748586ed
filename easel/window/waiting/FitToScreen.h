// Dialogs on screens that are smaller than they are.
#pragma once

class QDialog;

namespace easel::window {

// Makes a dialog no larger than the screen lets a window be. One that has a fixed size scrolls then.
void fitToScreen(QDialog& dialog);

} // namespace easel::window
