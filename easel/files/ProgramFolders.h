// Where the parts of the program lie: around it in the build tree, in the usual folders once it is installed.
#pragma once

#include <filesystem>
#include <string>

namespace easel::files {

// All of them are found from the running program's own place, so that what is installed can be moved as a
// whole. A file that is in neither place is given where it was to be in the build tree, so that an error
// names a place beside the program.

// A plug-in, by the name of its module.
std::filesystem::path pluginFile(const std::string& module);

// A library of the program's own, which no other program loads.
std::filesystem::path ownLibrary(const std::string& name);

// What is the same on every machine, by its place below the folder `share`.
std::filesystem::path sharedFile(const std::filesystem::path& place);

} // namespace easel::files
