// Entities that a file defines in its document type.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace easel::svg {

class Entities {
  public:
    // Reads the definitions in front of the root element. External entities are not among them.
    explicit Entities(std::string_view text);

    bool empty() const { return values_.empty(); }
    // The text with every known entity replaced. Throws ReadError when the entities of a file expand without
    // measure.
    std::string expanded(std::string_view text);

  private:
    void expandInto(std::string& result, std::string_view text, int depth);

    std::unordered_map<std::string_view, std::string_view> values_;
    std::size_t budget_;
};

} // namespace easel::svg
