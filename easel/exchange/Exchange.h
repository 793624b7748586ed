// Gradients in the formats of other programs: what came of reading or writing one.
#pragma once

#include "easel/files/Result.h"
#include "host/Gradient.h"

#include <string>
#include <vector>

namespace easel::exchange {

struct ImportedGradient {
    CGradientData gradient;
    std::string name;               // what the source calls it, UTF-8; may be empty
    std::vector<std::string> notes; // what the source has and a gradient cannot hold, a sentence each
};

struct ExportedGradient {
    std::string text;
    std::vector<std::string> notes; // what the gradient has and the target cannot hold, a sentence each
};

} // namespace easel::exchange
