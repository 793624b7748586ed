// Templates as files of one folder. The store knows blocks of bytes and file names, not gradients.
#pragma once

#include "host/Files.h"
#include "host/Memory.h"
#include "host/Strings.h"

#include <string>
#include <vector>

/// Locates the template folder, a secondary preferences folder of the host, and makes it if it is missing.
void InitTemplates(CStr255 const& folderName);

/// Stores the block under the file name, once the user agreed to replace a file of that name. The block stays
/// the caller's. Failures are not reported.
void SaveTemplate(Handle data, std::string const& fileName, unsigned long fileType);

/// The block stored under the file name, which the caller disposes of; null if there is none.
[[nodiscard]] Handle LoadTemplate(std::string const& fileName);

/// The names of the folder's files of that type, as they are on disk, in the order the host gives them.
[[nodiscard]] std::vector<std::string> GetTemplateList(unsigned long fileType);

/// Deletes the file of that name, if there is one.
void DeleteTemplate(CStr255 const& fileName);
