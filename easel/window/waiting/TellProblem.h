// Tells the user what went wrong.
#pragma once

#include "easel/files/Result.h"

#include <QString>

namespace easel::window {

class DialogStack;

// Shows "FILE: reason" or a plain sentence until the user has read it. Neither is taken for markup.
void tellProblem(const files::Error& error, DialogStack& dialogs);
void tellProblem(const QString& message, DialogStack& dialogs);

} // namespace easel::window
