// The conditions that children of a `switch` may carry.
#pragma once

#include <pugixml.hpp>

namespace easel::svg {

// Whether the element is for this program and its user, who reads English.
bool isForUser(pugi::xml_node element);

} // namespace easel::svg
