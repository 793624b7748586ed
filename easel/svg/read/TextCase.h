// The case in which letters are shown.
#pragma once

#include "easel/svg/style/TextStyle.h"

#include <string>

namespace easel::svg {

// Gives characters their case one after the other, as Unicode pairs them whatever the language.
class TextCase {
  public:
    // The characters that are shown for this one; two for a letter that has no other capital.
    std::u32string shown(char32_t character, TextTransform transform);

  private:
    bool insideWord_ = false;
};

} // namespace easel::svg
