// The resources that come with a plug-in, in one XML file: texts, dialogs, menus, alerts, cursors and icons.
//
// What the file looks like is said at its top. All texts here are UTF-8, and all of them can be turned into
// the host's encoding.
#pragma once

#include "easel/files/Result.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace easel::classic {

enum class ItemResourceKind { Button, StaticText, EditText, User, Separator, Popup, Radio };
enum class ButtonResourceRole { Plain, Default, Cancel };
enum class AlignmentResource { Left, Center, Right };

struct ItemResource {
    ItemResourceKind kind = ItemResourceKind::StaticText;
    int top = 0; // edges in the content's pixels
    int left = 0;
    int bottom = 0;
    int right = 0;
    std::string title;
    std::string tip;
    std::string label;
    ButtonResourceRole role = ButtonResourceRole::Plain;
    AlignmentResource alignment = AlignmentResource::Left;
    bool isNumber = false; // of a text field: what is typed there is a number
    int menu = 0;          // of a popup
};

struct DialogResource {
    std::string title;
    int width = 0;
    int height = 0;
    std::vector<ItemResource> items; // item 1 first
};

struct MenuEntryResource {
    enum class Kind { Choice, Separator };
    Kind kind = Kind::Choice;
    std::string text;
    bool enabled = true; // of a choice; a disabled one is shown and cannot be chosen
};
using MenuResource = std::vector<MenuEntryResource>;

struct AlertResource {
    std::string title;
    std::string text;
    std::string detail;
    std::string confirm;
    std::string decline;
};

struct CursorResource {
    std::filesystem::path file;
    int hotH = 0;
    int hotV = 0;
    int width = 0;
    int height = 0;
};

struct IconResource {
    std::filesystem::path file;
};

// What a file of resources holds; pictures are looked for beside it.
struct ResourceText {
    std::string_view xml;
    std::filesystem::path file;
};

class PluginResources {
  public:
    // Reads NAME.xml in a folder called NAME, where the pictures are too, with the texts of NAME.LANGUAGE.xml
    // for the first of the languages ("de-AT", "de") that has such a file.
    static files::Result<PluginResources> read(const std::filesystem::path& folder,
                                               const std::vector<std::string>& languages = {});
    // The same from texts. An error names the file at fault: that of the language if there is one, unless the
    // resources are no XML.
    static files::Result<PluginResources> parse(const ResourceText& text,
                                                const std::optional<ResourceText>& inLanguage = {});

    // These give null, or an empty text, for what is not there. Strings count from 1.
    std::string string(int listId, int index) const;
    const DialogResource* dialog(int id) const { return find(dialogs_, id); }
    const MenuResource* menu(int id) const { return find(menus_, id); }
    const AlertResource* alert(int id) const { return find(alerts_, id); }
    const CursorResource* cursor(int id) const { return find(cursors_, id); }
    const IconResource* icon(int id) const { return find(icons_, id); }

  private:
    friend class PluginResourceReader;

    template <class Value> static const Value* find(const std::map<int, Value>& all, int id) {
        const auto found = all.find(id);
        return found == all.end() ? nullptr : &found->second;
    }

    std::map<int, std::vector<std::string>> strings_;
    std::map<int, DialogResource> dialogs_;
    std::map<int, MenuResource> menus_;
    std::map<int, AlertResource> alerts_;
    std::map<int, CursorResource> cursors_;
    std::map<int, IconResource> icons_;
};

} // namespace easel::classic
