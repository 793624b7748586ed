// Imports what lies in the program's own folder.
#include "easel/exchange/StarterTemplates.h"

#include "easel/exchange/GradientFiles.h"
#include "easel/files/ProgramFolders.h"

#include <algorithm>

namespace easel::exchange {
namespace {

namespace fs = std::filesystem;
using files::Error;
using files::Result;

Result<std::vector<fs::path>> filesIn(const fs::path& folder) {
    std::error_code error;
    std::vector<fs::path> found;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        found.push_back(at->path());
    if (error)
        return tl::unexpected(Error{folder, error.message(), error});
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

Result<std::vector<std::string>> addStarterTemplates(const TemplateShelf& shelf, const fs::path& folder) {
    const auto found = filesIn(folder);
    if (!found)
        return tl::unexpected(found.error());
    const auto taken = shelf.names();
    std::vector<std::string> added;
    for (const fs::path& file : *found) {
        const std::string name = file.stem().string();
        if (std::find(taken.begin(), taken.end(), name) != taken.end())
            continue;
        const auto saved = importFile(file).and_then(
            [&](const ImportedGradient& imported) { return shelf.save(name, imported.gradient); });
        if (!saved)
            return tl::unexpected(saved.error());
        added.push_back(name);
    }
    return added;
}

fs::path starterTemplates() {
    return files::sharedFile(fs::path("easel") / "templates");
}

} // namespace easel::exchange
