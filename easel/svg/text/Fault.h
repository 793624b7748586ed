// Why a drawing could not be opened or saved.
#pragma once

#include <cstdint>
#include <string>

namespace easel::svg {

enum class Fault : std::uint8_t {
    CannotRead, // missing, a folder, not permitted, a fault of the disk
    Empty,
    TooLarge, // more bytes than are read, or more than memory holds
    Damaged,  // compressed bytes that cannot be unpacked
    NotXml,   // also where the file is cut off
    NotSvg,
    TooComplex, // shapes or texts repeated without measure
    Cancelled,
    CannotWrite,
};

// `message` names the file and the reason, in a sentence for the user.
struct Failure {
    Fault fault = Fault::CannotRead;
    std::string message;
};

} // namespace easel::svg
