// Gradients in template files.
#include "easel/exchange/TemplateFile.h"

#include "easel/classic/GradientBytes.h"

namespace easel::exchange {
namespace {

using files::FileError;

constexpr std::uint32_t kResourceType = classic::fourCharacters("TMPL");
constexpr std::int16_t kResourceId = 0;

} // namespace

files::OrFileError<CGradientData> readTemplate(const classic::FilePair& file) {
    if (!classic::exists(file))
        return FileError{file.data(), "no such file",
                         std::make_error_code(std::errc::no_such_file_or_directory)};
    const auto header = classic::readHeader(file);
    if (const auto* const error = std::get_if<FileError>(&header))
        return *error;
    return templateIn(std::get<classic::AppleDouble>(header).resourceFork(), file.header());
}

files::OrFileError<CGradientData> templateIn(classic::ByteView fork, const std::filesystem::path& file) {
    const auto read = classic::ResourceFork::read(fork);
    if (const auto* const damage = std::get_if<classic::ForkDamage>(&read))
        return FileError{file, describe(*damage), {}};
    const auto* const resource = std::get<classic::ResourceFork>(read).find(kResourceType, kResourceId);
    if (!resource)
        return FileError{file, "it holds no gradient", {}};
    auto gradient = classic::gradientFromBytes(resource->data);
    if (const auto* const damage = std::get_if<classic::GradientDamage>(&gradient))
        return FileError{file, describe(*damage), {}};
    return std::get<CGradientData>(std::move(gradient));
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
    header.setFinderInfo({kTemplateType, kTemplateCreator});
    header.setResourceFork(std::move(*written));
    return header;
}

} // namespace easel::exchange
