// Pairs of files for tests: a data fork with its header file, made and looked at without the code under test
// where that can be.
#pragma once

#include "easel/classic/AppleDouble.h"
#include "easel/classic/ResourceFork.h"
#include "tests/support/TemporaryFolder.h"

namespace tests {

inline constexpr std::uint32_t kTemplateType = easel::classic::fourCharacters("GTMP");
inline constexpr std::uint32_t kResourceType = easel::classic::fourCharacters("TMPL");

inline easel::classic::AppleDouble headerWith(const std::string& content,
                                              std::uint32_t type = kTemplateType) {
    easel::classic::ResourceFork fork;
    fork.put({kResourceType, 0, 0, "", {content.begin(), content.end()}});
    easel::classic::AppleDouble header;
    header.setFinderInfo({type, easel::classic::fourCharacters("*Kst")});
    header.setResourceFork(*fork.write());
    return header;
}

inline void dropFile(const std::filesystem::path& folder, const std::string& name, const std::string& content,
                     std::uint32_t type = kTemplateType, const std::string& data = "") {
    const auto header = headerWith(content, type).write();
    writeContent(folder / name, data);
    writeContent(folder / ("._" + name), {header.begin(), header.end()});
}

// What the file's one resource holds; "none" where there is no such file, "damaged" for anything else.
inline std::string keptIn(const std::filesystem::path& folder, const std::string& name) {
    using namespace easel::classic;
    using namespace easel::files;
    if (!std::filesystem::exists(folder / name))
        return "none";
    const auto bytes = contentOf(folder / ("._" + name));
    const auto header = AppleDouble::read(viewOf(bytes));
    if (!header)
        return "damaged";
    const auto fork = ResourceFork::read(header->resourceFork());
    const auto* const resource = fork ? fork->find(kResourceType, 0) : nullptr;
    return resource ? std::string(resource->data.begin(), resource->data.end()) : "damaged";
}

} // namespace tests
