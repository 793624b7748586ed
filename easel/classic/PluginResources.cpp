// Reading a plug-in's XML file of resources, which anybody may have edited.
#include "easel/classic/PluginResources.h"

#include "easel/classic/MacRoman.h"
#include "easel/classic/PluginTexts.h"
#include "easel/files/WholeFile.h"
#include "easel/text/Ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <memory>
#include <pugixml.hpp>

namespace easel::classic {
namespace {

using text::trimmed;

constexpr std::uintmax_t kLargestResourceFile = 16U << 20;
constexpr std::size_t kMostItems = 1000;

// What is wrong, and with which element; caught where the file is known.
struct Flaw {
    std::string reason;
};

std::string describe(const pugi::xml_node& node) {
    std::string text = std::string("<") + node.name();
    for (const char* name : {"id", "item"})
        if (const auto attribute = node.attribute(name))
            text += std::string(" ") + name + "=\"" + attribute.value() + "\"";
    return text + ">";
}

[[noreturn]] void fail(const pugi::xml_node& node, const std::string& reason) {
    throw Flaw{describe(node) + " " + reason};
}

std::string hostText(const pugi::xml_node& node, std::string_view text) {
    const auto encoded = toMacRoman(text);
    if (!encoded)
        fail(node, "has a text that the host's encoding cannot hold: " + encoded.error().culprit);
    if (encoded->size() > 255)
        fail(node, "has a text of more than 255 characters");
    return fromMacRoman(*encoded);
}

std::string textOf(const pugi::xml_node& node) {
    return hostText(node, trimmed(node.text().get()));
}

std::string textOf(const pugi::xml_node& node, const char* attribute) {
    return hostText(node, trimmed(node.attribute(attribute).value()));
}

// The whole numbers in an attribute, which all have 16 bits.
template <std::size_t count>
std::array<int, count> numbersOf(const pugi::xml_node& node, const char* attribute) {
    std::string_view rest = trimmed(node.attribute(attribute).value());
    std::array<int, count> numbers{};
    for (auto& number : numbers) {
        const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
        using Limits = std::numeric_limits<std::int16_t>;
        if (error != std::errc() || number < Limits::min() || number > Limits::max())
            fail(node, std::string("needs ") + std::to_string(count) + " 16-bit number(s) in \"" + attribute +
                           "\"");
        rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
        rest = trimmed(rest);
    }
    if (!rest.empty())
        fail(node, std::string("has more than it may in \"") + attribute + "\"");
    return numbers;
}

int numberOf(const pugi::xml_node& node, const char* attribute) {
    return numbersOf<1>(node, attribute)[0];
}

bool isYes(const pugi::xml_node& node, const char* attribute) {
    return node.attribute(attribute).value() == std::string_view("yes");
}

bool isNo(const pugi::xml_node& node, const char* attribute) {
    return node.attribute(attribute).value() == std::string_view("no");
}

template <class Value> struct Word {
    std::string_view text;
    Value value;
};

template <class Value, std::size_t count>
std::optional<Value> lookUp(const std::array<Word<Value>, count>& words, std::string_view text) {
    const auto found =
        std::find_if(words.begin(), words.end(), [&](const auto& word) { return word.text == text; });
    return found == words.end() ? std::nullopt : std::optional(found->value);
}

constexpr auto kItemKinds = std::to_array<Word<ItemResourceKind>>({{"button", ItemResourceKind::Button},
                                                                   {"static", ItemResourceKind::StaticText},
                                                                   {"edit", ItemResourceKind::EditText},
                                                                   {"user", ItemResourceKind::User},
                                                                   {"separator", ItemResourceKind::Separator},
                                                                   {"popup", ItemResourceKind::Popup},
                                                                   {"radio", ItemResourceKind::Radio}});

constexpr auto kAlignments = std::to_array<Word<AlignmentResource>>({{"", AlignmentResource::Left},
                                                                     {"left", AlignmentResource::Left},
                                                                     {"center", AlignmentResource::Center},
                                                                     {"right", AlignmentResource::Right}});

ItemResource itemFrom(const pugi::xml_node& node) {
    ItemResource item;
    const auto kind = lookUp(kItemKinds, node.name());
    if (!kind)
        fail(node, "is no kind of dialog item");
    const auto alignment = lookUp(kAlignments, node.attribute("align").value());
    if (!alignment)
        fail(node, "has an alignment other than left, center and right");
    item.kind = *kind;
    item.alignment = *alignment;
    const auto bounds = numbersOf<4>(node, "bounds");
    item.top = bounds[0];
    item.left = bounds[1];
    item.bottom = bounds[2];
    item.right = bounds[3];
    if (item.top > item.bottom || item.left > item.right)
        fail(node, "has bounds that are not top, left, bottom, right");
    item.title = textOf(node, "title");
    item.tip = textOf(node, "tip");
    item.label = textOf(node, "label");
    item.role = isYes(node, "default")  ? ButtonResourceRole::Default
                : isYes(node, "cancel") ? ButtonResourceRole::Cancel
                                        : ButtonResourceRole::Plain;
    item.isNumber = isYes(node, "number");
    if (item.kind == ItemResourceKind::Popup)
        item.menu = numberOf(node, "menu");
    return item;
}

DialogResource dialogFrom(const pugi::xml_node& node) {
    DialogResource dialog;
    dialog.title = textOf(node, "title");
    dialog.width = numberOf(node, "width");
    dialog.height = numberOf(node, "height");
    if (dialog.width < 1 || dialog.height < 1)
        fail(node, "has no size");
    std::map<int, ItemResource> items;
    for (const auto& child : node.children())
        if (child.type() == pugi::node_element &&
            !items.emplace(numberOf(child, "item"), itemFrom(child)).second)
            fail(child, "has the number of an item before it");
    if (items.empty() || items.begin()->first != 1 ||
        items.rbegin()->first != static_cast<int>(items.size()) || items.size() > kMostItems)
        fail(node, "needs items numbered from 1 without a gap");
    for (auto& [number, item] : items)
        dialog.items.push_back(std::move(item));
    return dialog;
}

MenuResource menuFrom(const pugi::xml_node& node) {
    MenuResource menu;
    for (const auto& child : node.children()) {
        const std::string_view name = child.name();
        if (name == "entry")
            menu.push_back({MenuEntryResource::Kind::Choice, textOf(child), !isNo(child, "enabled")});
        else if (name == "separator")
            menu.push_back({MenuEntryResource::Kind::Separator, {}, true});
        else if (child.type() == pugi::node_element)
            fail(child, "is no kind of menu entry");
    }
    return menu;
}

AlertResource alertFrom(const pugi::xml_node& node) {
    return {textOf(node, "title"), textOf(node, "text"), textOf(node, "detail"), textOf(node, "confirm"),
            textOf(node, "decline")};
}

// Pictures lie beside the file; a path that leads elsewhere is not followed.
std::filesystem::path pictureOf(const pugi::xml_node& node, const std::filesystem::path& folder) {
    const std::string name = node.attribute("file").value();
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos)
        fail(node, "needs the name of a picture beside this file");
    return folder / name;
}

CursorResource cursorFrom(const pugi::xml_node& node, const std::filesystem::path& folder) {
    const auto hotspot = numbersOf<2>(node, "hotspot");
    const auto size = numbersOf<2>(node, "size");
    if (size[0] < 1 || size[1] < 1 || size[0] > 256 || size[1] > 256)
        fail(node, "has a size outside 1 to 256");
    return {pictureOf(node, folder), hotspot[0], hotspot[1], size[0], size[1]};
}

std::vector<std::string> stringsFrom(const pugi::xml_node& node) {
    std::vector<std::string> strings;
    for (const auto& child : node.children("string"))
        strings.push_back(textOf(child));
    return strings;
}

} // namespace

class PluginResourceReader {
  public:
    PluginResourceReader(PluginResources& out, std::filesystem::path folder)
        : out_(out), folder_(std::move(folder)) {}

    void read(const pugi::xml_node& root) {
        for (const auto& node : root.children())
            if (node.type() == pugi::node_element)
                readResource(node);
        for (const auto& [id, dialog] : out_.dialogs_)
            for (const auto& item : dialog.items)
                if (item.kind == ItemResourceKind::Popup && !out_.menu(item.menu))
                    throw Flaw{"dialog " + std::to_string(id) + " shows menu " + std::to_string(item.menu) +
                               ", which is missing"};
    }

  private:
    void readResource(const pugi::xml_node& node) {
        const std::string_view name = node.name();
        if (name == "strings")
            add(out_.strings_, node, stringsFrom(node));
        else if (name == "dialog")
            add(out_.dialogs_, node, dialogFrom(node));
        else if (name == "menu")
            add(out_.menus_, node, menuFrom(node));
        else if (name == "alert")
            add(out_.alerts_, node, alertFrom(node));
        else if (name == "cursor")
            add(out_.cursors_, node, cursorFrom(node, folder_));
        else if (name == "icon")
            add(out_.icons_, node, IconResource{pictureOf(node, folder_)});
        else
            fail(node, "is no kind of resource");
    }

    template <class Value> void add(std::map<int, Value>& all, const pugi::xml_node& node, Value value) {
        if (!all.emplace(numberOf(node, "id"), std::move(value)).second)
            fail(node, "has the id of one before it");
    }

    PluginResources& out_;
    std::filesystem::path folder_;
};

namespace {

using Document = std::unique_ptr<pugi::xml_document>;

files::Result<Document> documentFrom(const ResourceText& text) {
    auto document = std::make_unique<pugi::xml_document>();
    const auto parsed = document->load_buffer(text.xml.data(), text.xml.size());
    if (!parsed)
        return tl::unexpected(
            files::Error{text.file, std::string("it is no well-formed XML: ") + parsed.description(), {}});
    if (std::string_view(document->document_element().name()) != "resources")
        return tl::unexpected(files::Error{text.file, "it has no <resources>", {}});
    return document;
}

// NAME.de.xml beside NAME.xml, in the first of the languages that has one; empty if none has.
std::filesystem::path fileInLanguage(const std::filesystem::path& folder,
                                     const std::vector<std::string>& languages) {
    for (const std::string& language : languages) {
        std::error_code error;
        auto file = folder / (folder.filename().string() + '.' + language + ".xml");
        if (std::filesystem::exists(file, error))
            return file;
    }
    return {};
}

} // namespace

files::Result<PluginResources> PluginResources::read(const std::filesystem::path& folder,
                                                     const std::vector<std::string>& languages) {
    const auto file = folder / (folder.filename().string() + ".xml");
    const auto bytes = files::readWholeFile(file, kLargestResourceFile);
    if (!bytes)
        return tl::unexpected(bytes.error());
    const ResourceText own{files::charactersOf(*bytes), file};
    const std::filesystem::path textsFile = fileInLanguage(folder, languages);
    if (textsFile.empty())
        return parse(own);
    const auto texts = files::readWholeFile(textsFile, kLargestResourceFile);
    if (!texts)
        return tl::unexpected(texts.error());
    return parse(own, ResourceText{files::charactersOf(*texts), textsFile});
}

files::Result<PluginResources> PluginResources::parse(const ResourceText& text,
                                                      const std::optional<ResourceText>& inLanguage) {
    const auto document = documentFrom(text);
    if (!document)
        return tl::unexpected(document.error());
    if (inLanguage) {
        const auto texts = documentFrom(*inLanguage);
        if (!texts)
            return tl::unexpected(texts.error());
        if (const auto flaw = putTexts((*texts)->document_element(), (*document)->document_element()))
            return tl::unexpected(files::Error{inLanguage->file, *flaw, {}});
    }
    PluginResources resources;
    try {
        PluginResourceReader(resources, text.file.parent_path()).read((*document)->document_element());
    } catch (const Flaw& flaw) {
        return tl::unexpected(files::Error{inLanguage ? inLanguage->file : text.file, flaw.reason, {}});
    }
    return resources;
}

std::string PluginResources::string(int listId, int index) const {
    const auto* const list = find(strings_, listId);
    if (!list || index < 1 || static_cast<std::size_t>(index) > list->size())
        return {};
    return (*list)[static_cast<std::size_t>(index) - 1];
}

} // namespace easel::classic
