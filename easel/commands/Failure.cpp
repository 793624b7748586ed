// How a command fails.
#include "easel/commands/Failure.h"

#include <iostream>

namespace easel::commands {

int fail(const files::Error& error) {
    std::cerr << "easel: " << error.message() << "\n";
    return kFailed;
}

} // namespace easel::commands
