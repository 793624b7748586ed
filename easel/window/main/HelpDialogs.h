// The dialogs of the Help menu.
#pragma once

#include <string>

class QMainWindow;

namespace easel::window {

class DialogStack;

// Lists all keys of the window and what the mouse does.
void showShortcuts(const QMainWindow& window, DialogStack& dialogs);

void showAbout(const std::string& version, DialogStack& dialogs);

} // namespace easel::window
