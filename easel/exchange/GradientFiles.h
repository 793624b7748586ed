// Gradients in files of every format known here; the ending of the file's name tells which.
#pragma once

#include "easel/exchange/Exchange.h"
#include "easel/files/Trash.h"

#include <string>
#include <vector>

namespace easel::exchange {

// The endings, with what they stand for, for help texts.
inline constexpr const char* kFormatsInWords =
    ".GRD (with its header file ._NAME beside it), .bin (MacBinary), .ggr (GIMP), .svg, .css";

// Reads a gradient; the error names the file and the reason.
files::Result<ImportedGradient> importFile(const std::filesystem::path& file);

// Writes a gradient whole or not at all, and gives the notes on what the file does not hold. A .GRD that is
// replaced goes to the trash.
files::Result<std::vector<std::string>> exportFile(const CGradientData& gradient, const std::string& name,
                                                   const std::filesystem::path& file,
                                                   const files::Trash& trash);

} // namespace easel::exchange
