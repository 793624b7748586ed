// Ends the program when the plug-in calls something that this host lacks.
#include "Missing.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kMissingOperation = 3;

} // namespace

void Missing(char const* operation, char const* file, int line) {
    std::fprintf(stderr, "minimal-host lacks %s (%s:%d)\n", operation, file, line);
    std::_Exit(kMissingOperation);
}
