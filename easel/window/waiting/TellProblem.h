// Tells the user what went wrong.
#pragma once

#include <string>

namespace easel::window {

class DialogStack;

// Shows "FILE: reason" or a plain sentence until the user has read it. Neither is taken for markup.
void tellProblem(const std::string& message, DialogStack& dialogs);

} // namespace easel::window
