// Sentences that the core says, in the user's language.
#pragma once

#include "easel/files/Result.h"

#include <QString>

#include <string>

namespace easel::window {

// A note, the reason of an error or what comes of it. One that nobody translated stays as it is.
QString inUsersLanguage(const std::string& sentence);

// "FILE: reason"
QString inUsersLanguage(const files::Error& error);
// "FILE: reason. Outcome"
QString inUsersLanguage(const files::Error& error, const std::string& outcome);

} // namespace easel::window
