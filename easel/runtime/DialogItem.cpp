// What an item shows.
#include "easel/runtime/DialogItem.h"

#include "easel/classic/MacRoman.h"

namespace easel::runtime {

std::string DialogItem::shownText() const {
    return classic::fromMacRoman(text);
}

} // namespace easel::runtime
