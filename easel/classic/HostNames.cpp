// Translating names of files, and refusing those that would lead elsewhere.
#include "easel/classic/HostNames.h"

#include "easel/classic/FilePair.h"
#include "easel/classic/MacRoman.h"
#include "easel/files/AtomicFile.h"

#include <algorithm>

namespace easel::classic {
namespace {

constexpr std::size_t kLongestName = 63;

bool isOrdinary(std::string_view diskName) {
    return !diskName.empty() && diskName != "." && diskName != ".." && !diskName.starts_with(kHeaderPrefix) &&
           !files::isTemporaryName(diskName);
}

} // namespace

std::optional<std::string> nameOnDisk(std::string_view hostName) {
    constexpr std::string_view kForbidden(":\0", 2);
    if (hostName.size() > kLongestName || hostName.find_first_of(kForbidden) != std::string_view::npos)
        return std::nullopt;
    auto name = fromMacRoman(hostName);
    std::replace(name.begin(), name.end(), '/', ':');
    return isOrdinary(name) ? std::optional(std::move(name)) : std::nullopt;
}

std::string whyNoFile(std::string_view hostName) {
    if (hostName.find(':') != std::string_view::npos)
        return "the name of a file cannot hold ':'";
    if (hostName.starts_with(kHeaderPrefix))
        return "the name of a file cannot begin with '._'";
    return "it cannot be the name of a file";
}

std::optional<std::string> nameInHost(std::string_view diskName) {
    if (!isOrdinary(diskName))
        return std::nullopt;
    auto encoded = toMacRoman(diskName);
    if (!encoded || encoded->size() > kLongestName)
        return std::nullopt;
    std::replace(encoded->begin(), encoded->end(), ':', '/');
    return std::move(*encoded);
}

} // namespace easel::classic
