// The host's constant string objects, as the interface names them.
#pragma once

#include "host/Strings.h"

#include <string>

namespace easel::runtime {

// The object's text in UTF-8; empty for null.
std::string utf8Of(CFStringRef string);

} // namespace easel::runtime
