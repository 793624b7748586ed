// A plug-in's resource file, and behind a 0 the texts of a language for it: any text is refused with a
// reason, or gives resources that can be looked up.
#include "easel/classic/PluginResources.h"

#include <cstddef>
#include <cstdlib>

using namespace easel::classic;
using namespace easel::files;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view all(reinterpret_cast<const char*>(data), size);
    const std::size_t end = all.find('\0');
    std::optional<ResourceText> inLanguage;
    if (end != std::string_view::npos)
        inLanguage = ResourceText{all.substr(end + 1), "f/f.de.xml"};
    const auto read = PluginResources::parse({all.substr(0, end), "f/f.xml"}, inLanguage);
    if (!read) {
        if (read.error().reason.empty())
            std::abort();
        return 0;
    }
    for (int id = -3; id < 10; ++id) {
        if (read->string(id, 1).size() > std::size_t{3} * 255)
            std::abort();
        const auto* const dialog = read->dialog(id);
        for (std::size_t i = 0; dialog && i < dialog->items.size(); ++i)
            if (dialog->items[i].kind == ItemResourceKind::Popup && !read->menu(dialog->items[i].menu))
                std::abort();
    }
    return 0;
}
