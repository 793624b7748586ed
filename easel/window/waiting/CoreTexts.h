// Sentences that the core says, in the user's language.
#pragma once

#include "easel/files/Result.h"

#include <QString>

#include <string>

namespace easel::window {

// A note or the reason of an error. One that nobody translated, such as a reason with numbers in it, or a
// system's own, stays as it is.
QString inUsersLanguage(const std::string& sentence);

// "FILE: reason"
QString inUsersLanguage(const files::Error& error);

} // namespace easel::window
