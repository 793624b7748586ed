// A file of the host on disk: its data fork under its name, and beside it the header file with all the rest.
#pragma once

#include "easel/classic/AppleDouble.h"
#include "easel/files/Result.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace easel::classic {

constexpr std::string_view kHeaderPrefix = "._";

struct FilePair {
    std::filesystem::path folder;
    std::string name; // on disk

    std::filesystem::path data() const { return folder / name; }
    std::filesystem::path header() const { return folder / (std::string(kHeaderPrefix) + name); }

    bool operator==(const FilePair&) const = default;
};

// Whether there is such a file. A header file alone is none; a folder is none either.
bool exists(const FilePair& file);

// The header file; one without entries where there is no header file. Damage is an error that says what it
// is.
files::Result<AppleDouble> readHeader(const FilePair& file);

// Type and creator, reading no more of the header file than that takes.
//
// A file whose header file is damaged beyond that is taken for what the ending of its name says, so that the
// user sees it and can do something about it: ".GRD" is a template. Nothing else without a header file has a
// type.
FinderInfo readFinderInfo(const FilePair& file);

} // namespace easel::classic
