#include "easel/svg/read/PlaceBeside.h"

#include "easel/svg/text/DataUri.h"
#include "easel/text/Ascii.h"

#include <algorithm>
#include <string>

namespace easel::svg {

namespace {

// "http:" and its like; one letter is no scheme but a drive.
bool hasScheme(std::string_view reference) {
    const std::size_t end = reference.find_first_of(":/?#");
    return end != std::string_view::npos && reference[end] == ':';
}

bool liesIn(const std::filesystem::path& folder, const std::filesystem::path& file) {
    const auto [inFolder, inFile] = std::mismatch(folder.begin(), folder.end(), file.begin(), file.end());
    return inFolder == folder.end() && inFile != file.end();
}

} // namespace

std::optional<std::filesystem::path> placeBeside(const std::filesystem::path& drawing,
                                                 std::string_view reference) {
    constexpr std::string_view kFile = "file://";
    if (text::equalIgnoringCase(reference.substr(0, kFile.size()), kFile))
        reference.remove_prefix(kFile.size());
    else if (hasScheme(reference) || reference.starts_with("//"))
        return std::nullopt;
    const std::string name = withoutPercents(reference.substr(0, reference.find_first_of("?#")));
    if (drawing.empty() || name.empty() || name.find('\0') != std::string::npos)
        return std::nullopt;
    std::error_code error;
    const std::filesystem::path folder =
        std::filesystem::canonical(std::filesystem::absolute(drawing, error).parent_path(), error);
    if (error)
        return std::nullopt;
    const std::filesystem::path file = std::filesystem::weakly_canonical(folder / name, error);
    return !error && liesIn(folder, file) ? std::optional(file) : std::nullopt;
}

} // namespace easel::svg
