// The dialogs of the Help menu.
#pragma once

#include <string>

class QMainWindow;

namespace easel::window {

class DesktopUser;

// Lists the keys of the window's menus and what the mouse does.
void showShortcuts(const QMainWindow& window, DesktopUser& user);

void showAbout(const std::string& version, DesktopUser& user);

} // namespace easel::window
