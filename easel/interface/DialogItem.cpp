// What an item shows.
#include "easel/interface/DialogItem.h"

#include "easel/classic/MacRoman.h"

namespace easel::host {

std::string DialogItem::shownText() const {
    return classic::fromMacRoman(text);
}

} // namespace easel::host
