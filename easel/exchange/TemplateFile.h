// Template files: a gradient in the one resource of a file of the host.
#pragma once

#include "easel/classic/FilePair.h"
#include "easel/classic/ResourceFork.h"
#include "host/Gradient.h"

#include <optional>

namespace easel::exchange {

// The gradient of a template, or why it has none.
files::Result<CGradientData> readTemplate(const classic::FilePair& file);
// The same from a resource fork; the error names `file`.
files::Result<CGradientData> templateIn(classic::ByteView fork, const std::filesystem::path& file);

// Everything about a template but its name; nothing for a gradient without stops.
std::optional<classic::AppleDouble> templateHeader(const CGradientData& gradient);

} // namespace easel::exchange
