// Opens and saves drawings as SVG files.
#pragma once

#include "easel/drawing/Drawing.h"
#include "easel/files/Result.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace easel::svg {

struct ReadOptions {
    // Called now and then with the part that is done, 0 to 1; false cancels.
    std::function<bool(double)> progress;
    std::uintmax_t largestFile = std::uintmax_t{512} << 20; // bytes, also of what is unpacked
};

// Files may be compressed with gzip, whatever their names. Nothing that the file refers to outside itself is
// fetched. The error's code is the system's, or an svg::Fault.
files::Result<drawing::Drawing> readFile(const std::filesystem::path& file, const ReadOptions& options = {});
// The bytes of a file; the error names `file`.
files::Result<drawing::Drawing> readBytes(std::string bytes, const std::filesystem::path& file,
                                          const ReadOptions& options = {});
// The same of bytes that this very file holds, or that are to take their place.
files::Result<drawing::Drawing> readBytesOf(const std::filesystem::path& file, std::string bytes,
                                            const ReadOptions& options = {});

// The bytes of the file that holds the drawing: those it was read from, with the changed parts rewritten. A
// drawing that was not changed gives the same bytes. What came compressed is compressed again.
std::string toBytes(const drawing::Drawing& drawing);
// The same of what a drawing held, on any thread.
std::string toBytes(const drawing::Snapshot& drawing);
// The bytes that the drawing was read from; none if it came from no file.
std::string openedBytes(const drawing::Drawing& drawing);
// The bytes to be saved in that file. Any other file than the one that the drawing was read from is
// compressed if its name ends in ".svgz", and only then. An error if reading them would not give every
// changed fill again.
files::Result<std::string> bytesFor(const drawing::Drawing& drawing, const std::filesystem::path& file);
// Puts these into the file, whole or not at all, and marks the drawing as saved.
[[nodiscard]] files::Result<> saveFile(drawing::Drawing& drawing, const std::filesystem::path& file);

} // namespace easel::svg
