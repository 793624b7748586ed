// What an item shows.
#include "easel/interface/DialogItem.h"

#include "easel/toolbox/MacRoman.h"

namespace easel::host {

std::string DialogItem::shownText() const {
    return toolbox::fromMacRoman(text);
}

} // namespace easel::host
