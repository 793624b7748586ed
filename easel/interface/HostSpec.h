// The host interface's record of a file and Easel's own, turned into each other.
#pragma once

#include "easel/toolbox/FolderCatalog.h"
#include "host/Files.h"

namespace easel::host {

toolbox::FileSpec fileSpecFrom(const FSSpec& spec);
FSSpec hostSpecFrom(const toolbox::FileSpec& spec);

} // namespace easel::host
