// Templates in scenarios: saving them in the editor, and looking at their files without the program.
#pragma once

#include "easel/classic/AppleDouble.h"
#include "easel/classic/GradientBytes.h"
#include "easel/classic/ResourceFork.h"
#include "tests/scenario/Editor.h"

namespace tests {

inline constexpr std::uint32_t kTemplateType = easel::classic::fourCharacters("GTMP");
inline constexpr std::uint32_t kTemplateResource = easel::classic::fourCharacters("TMPL");

inline std::filesystem::path templateFolder(const Player& player) {
    return player.preferences() / "Gradient Templates";
}

// Lines that play these in the editor, opened on the current gradient, and confirm it.
inline std::string inEditor(const std::string& script) {
    return "start\nnew 400 300\noptions\n" + script + "hit 1\n";
}

// Lines that save the edited gradient under a name, in the open editor.
inline std::string saveAs(const std::string& name) {
    return "choose 9 1\nset 4 \"" + name + "\"\nhit 1\n";
}

// Lines that delete the rows of the list, in the open editor.
inline std::string deleteRows(const std::string& rows) {
    return "choose 9 2\nselect " + rows + "\ncommand ok\nanswer yes\n";
}

// Drops a file into the template folder, as another program would.
inline void dropTemplate(const Player& player, const std::string& name, const easel::files::Bytes& content,
                         std::uint32_t type = kTemplateType, std::uint32_t resource = kTemplateResource) {
    easel::classic::ResourceFork fork;
    fork.put({resource, 0, 0, "", content});
    easel::classic::AppleDouble header;
    header.setFinderInfo({type, easel::classic::fourCharacters("*Kst")});
    header.setResourceFork(*fork.write());
    const auto bytes = header.write();
    writeContent(templateFolder(player) / name, "");
    writeContent(templateFolder(player) / ("._" + name), {bytes.begin(), bytes.end()});
}

// A gradient with one more stop than the default one has.
inline CGradientData threeStopGradient() {
    CGradientData gradient;
    gradient.ColorList().insert(std::next(gradient.ColorList().begin()), CGradientColor({65535, 0, 0}, 0.25));
    return gradient;
}

// What the template resource of a file on disk holds; empty if there is none.
inline easel::files::Bytes storedIn(const std::filesystem::path& folder, const std::string& name) {
    using namespace easel::classic;
    using namespace easel::files;
    const auto bytes = contentOf(folder / ("._" + name));
    const auto header = AppleDouble::read(viewOf(bytes));
    if (!header)
        return {};
    const auto fork = ResourceFork::read(header->resourceFork());
    const auto* const resource = fork ? fork->find(kTemplateResource, 0) : nullptr;
    return resource ? resource->data : Bytes();
}

// The number of stops stored, or 0 where no gradient is.
inline std::size_t stopsStoredIn(const std::filesystem::path& folder, const std::string& name) {
    const auto gradient = easel::classic::gradientFromBytes(storedIn(folder, name));
    return gradient ? gradient->ColorList().size() : 0;
}

// The names that a printed list of templates holds.
inline std::vector<std::string> namesIn(const nlohmann::json& templates) {
    std::vector<std::string> names;
    for (const auto& each : templates)
        names.push_back(each.at("name"));
    return names;
}

// What the popup offers from the fifth entry on.
inline std::vector<std::string> offered(const nlohmann::json& dialog) {
    const std::vector<std::string> menu = itemOf(dialog, kTemplates).at("menu");
    return {menu.begin() + 4, menu.end()};
}

} // namespace tests
