// The dialog that asks for a template's name.
#pragma once

#include <string>

/// Asks for a name of at most 20 characters, offering `name`. True if a name was confirmed that is not empty;
/// `name` is then that name. After Cancel `name` is as it was.
bool ModalGetTemplateName(std::string& name);
