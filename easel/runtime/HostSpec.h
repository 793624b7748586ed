// The host interface's record of a file and Easel's own, turned into each other.
#pragma once

#include "easel/classic/FolderCatalog.h"
#include "host/Files.h"

namespace easel::runtime {

classic::FileSpec fileSpecFrom(const FSSpec& spec);
FSSpec hostSpecFrom(const classic::FileSpec& spec);

} // namespace easel::runtime
