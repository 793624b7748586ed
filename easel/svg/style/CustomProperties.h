// Custom properties (--name) and the values in which var() asks for them.
#pragma once

#include "easel/svg/style/Css.h"

#include <deque>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace easel::svg {

// Those that one element states, and where those of the elements around it are.
struct CustomProperties {
    const CustomProperties* outer = nullptr;
    std::vector<Declaration> own; // weakest first
};

bool isCustomProperty(std::string_view name);
bool asksForCustomProperty(std::string_view value);

// Keeps what is made of custom properties and of values for as long as the file is read.
class CustomValues {
  public:
    // Throws ReadError if there are too many to be kept. A null `outer`: nothing is stated around.
    const CustomProperties* add(const CustomProperties* outer, std::vector<Declaration> own);
    // The value with every var() replaced; empty if one of them stands for nothing, or for too much.
    std::string_view replaced(std::string_view value, const CustomProperties* properties);

    // The text without comments and with names in it made plain, see withPlainNames.
    std::string_view plain(std::string_view text);

  private:
    std::deque<CustomProperties> properties_;
    std::unordered_set<std::string> values_;
};

} // namespace easel::svg
