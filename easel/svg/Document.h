// Opens and saves drawings as SVG files.
#pragma once

#include "easel/drawing/Drawing.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <variant>

namespace easel::svg {

enum class Fault : std::uint8_t {
    CannotRead, // missing, a folder, not permitted, a fault of the disk
    Empty,
    TooLarge, // more bytes than are read, or more than memory holds
    NotXml,   // also where the file is cut off
    NotSvg,
    TooDeep,    // elements nested too deep
    TooComplex, // shapes or texts repeated without measure
    Circular,   // an element that refers to itself by way of others
    OutOfRange, // a number too large to compute with
    Cancelled,
    CannotWrite,
};

// `message` names the file and the reason, in a sentence for the user.
struct Failure {
    Fault fault = Fault::CannotRead;
    std::string message;
};

struct ReadOptions {
    // Called now and then with the part that is done, 0 to 1; false cancels.
    std::function<bool(double)> progress;
    std::uintmax_t largestFile = std::uintmax_t{512} << 20; // bytes
};

using ReadResult = std::variant<drawing::Drawing, Failure>;

// Nothing that the file refers to outside itself is fetched.
ReadResult readFile(const std::filesystem::path& file, const ReadOptions& options = {});
// The bytes of a file; `name` is what messages call it.
ReadResult readBytes(std::string bytes, const std::string& name, const ReadOptions& options = {});

// The bytes of the file that holds the drawing: those it was read from, with the changed parts rewritten. A
// drawing that was not changed gives the same bytes.
std::string toBytes(const drawing::Drawing& drawing);
// Puts them into the file, whole or not at all, and marks the drawing as saved.
std::optional<Failure> saveFile(drawing::Drawing& drawing, const std::filesystem::path& file);

} // namespace easel::svg
