// Template files: a gradient in the one resource of a file of the host.
#pragma once

#include "easel/toolbox/FilePair.h"
#include "easel/toolbox/ResourceFork.h"
#include "host/Gradient.h"

namespace easel::exchange {

inline constexpr std::uint32_t kTemplateType = toolbox::fourCharacters("GTMP");
inline constexpr std::uint32_t kTemplateCreator = toolbox::fourCharacters("*Kst");

/// The gradient of a template, or why it has none.
toolbox::OrFileError<CGradientData> readTemplate(const toolbox::FilePair& file);
/// The same from a resource fork; the error names `file`.
toolbox::OrFileError<CGradientData> templateIn(toolbox::ByteView fork, const std::filesystem::path& file);

/// Everything about a template but its name; nothing for a gradient without stops.
std::optional<toolbox::AppleDouble> templateHeader(const CGradientData& gradient);

} // namespace easel::exchange
