// The folder in which the plug-in keeps its templates.
#pragma once

#include "easel/toolbox/FileError.h"
#include "easel/toolbox/HostFiles.h"

namespace easel::host {

// Its name is a text of the plug-in's resources; they are read, and the module is not loaded. Nothing that is
// there is changed, and the folder need not exist.
toolbox::OrFileError<std::filesystem::path> templateFolder(const std::filesystem::path& module,
                                                           const toolbox::StoragePlaces& places);

} // namespace easel::host
