// What the plug-in does with the memory block that holds a stored gradient.
#pragma once

#include <string>
#include <vector>

// "lock", "read", "unlock" and "dispose", in the order in which they happened since it was last cleared.
extern std::vector<std::string> gBlockEvents;
