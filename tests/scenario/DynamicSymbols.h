// The symbols by which a module is linked at run time.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tests {

struct DynamicSymbol {
    std::string name;
    bool defined = false; // by the module itself, and visible outside of it
    bool unique = false;  // one for the whole process, which keeps its module loaded
};

// Reads the table of a 64-bit ELF file. Fails the test and gives nothing if the file has none.
std::vector<DynamicSymbol> dynamicSymbols(const std::filesystem::path& module);

} // namespace tests
