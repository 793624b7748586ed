// Puts the texts of one language into the resources of a plug-in.
#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>

namespace easel::classic {

// `texts` looks like the resources themselves, but holds only what the language says differently: resources
// by kind and id, items of a dialog by number, strings and menu entries by place, an empty one for no text of
// its own. Besides texts it may change the sizes of dialogs and the bounds of items, where a text needs the
// room. Strings with translate="no" stay. Gives the reason if it has something that the resources lack; they
// are changed up to there then.
std::optional<std::string> putTexts(const pugi::xml_node& texts, const pugi::xml_node& resources);

} // namespace easel::classic
