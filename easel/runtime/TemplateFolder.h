// The folder in which the plug-in keeps its templates.
#pragma once

#include "easel/classic/HostFiles.h"
#include "easel/files/Result.h"

namespace easel::runtime {

// Its name is a text of the plug-in's resources; they are read, and the module is not loaded. Nothing that is
// there is changed, and the folder need not exist.
files::Result<std::filesystem::path> templateFolder(const std::filesystem::path& module,
                                                    const classic::StoragePlaces& places);

} // namespace easel::runtime
