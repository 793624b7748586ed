// Changing files of the host on disk, in steps of which exactly one decides.
//
// Whatever happens between two steps, the name stands for the old file or for the new one, whole. What a
// cut-off change leaves besides is a temporary file, which `recoverFolder` clears away with what belongs to
// it, and perhaps a copy of the old file in the trash.
#pragma once

#include "easel/classic/FilePair.h"
#include "easel/files/AtomicFile.h"
#include "easel/files/Trash.h"

namespace easel::classic {

// Makes the file with an empty data fork and that header. A file that was there goes to the trash as a
// whole.
[[nodiscard]] files::Result<> writePair(const FilePair& file, const AppleDouble& header,
                                        const files::Trash& trash);

// Moves the file to the trash.
[[nodiscard]] files::Result<> trashPair(const FilePair& file, const files::Trash& trash,
                                        files::Flushing flushing = files::Flushing::AtOnce);

// Clears away what changes that were cut off left in the folder.
void recoverFolder(const std::filesystem::path& folder);

} // namespace easel::classic
