// Data that stands in a reference itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace easel::svg {

struct DataUri {
    std::string_view mediaType; // without parameters; points into the text
    std::string bytes;
};

bool isDataUri(std::string_view text);

// Nothing unless the text is a data URI whose data can be told.
std::optional<DataUri> parseDataUri(std::string_view text);

// The text with "%20" and its like as the bytes they stand for.
std::string withoutPercents(std::string_view text);

// The bytes in base64, on one line.
std::string base64Text(std::string_view bytes);

} // namespace easel::svg
