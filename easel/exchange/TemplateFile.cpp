// Gradients in template files.
#include "easel/exchange/TemplateFile.h"

#include "easel/classic/GradientBytes.h"
#include "easel/classic/TemplateInfo.h"

#include <optional>

namespace easel::exchange {
namespace {

using files::Error;

constexpr std::uint32_t kResourceType = classic::fourCharacters("TMPL");
constexpr std::int16_t kResourceId = 0;

} // namespace

files::Result<CGradientData> readTemplate(const classic::FilePair& file) {
    if (!classic::exists(file))
        return tl::unexpected(
            Error{file.data(), "no such file", std::make_error_code(std::errc::no_such_file_or_directory)});
    const auto header = classic::readHeader(file);
    if (!header)
        return tl::unexpected(header.error());
    return templateIn(header->resourceFork(), file.header());
}

files::Result<CGradientData> templateIn(classic::ByteView fork, const std::filesystem::path& file) {
    const auto read = classic::ResourceFork::read(fork);
    if (!read)
        return tl::unexpected(Error{file, describe(read.error()), {}});
    const auto* const resource = read->find(kResourceType, kResourceId);
    if (!resource)
        return tl::unexpected(Error{file, "it holds no gradient", {}});
    return classic::gradientFromBytes(resource->data).map_error([&](classic::GradientDamage damage) {
        return Error{file, describe(damage), {}};
    });
}

std::optional<classic::AppleDouble> templateHeader(const CGradientData& gradient) {
    auto bytes = classic::gradientToBytes(gradient);
    if (!bytes)
        return std::nullopt;
    classic::ResourceFork fork;
    fork.put({kResourceType, kResourceId, 0, "", std::move(*bytes)});
    auto written = fork.write();
    if (!written)
        return std::nullopt;
    classic::AppleDouble header;
    header.setFinderInfo(classic::kTemplateInfo);
    header.setResourceFork(std::move(*written));
    return header;
}

} // namespace easel::exchange
