// Gradients in template files.
#include "easel/exchange/TemplateFile.h"

#include "easel/toolbox/GradientBytes.h"

namespace easel::exchange {
namespace {

using toolbox::FileError;

constexpr std::uint32_t kResourceType = toolbox::fourCharacters("TMPL");
constexpr std::int16_t kResourceId = 0;

} // namespace

toolbox::OrFileError<CGradientData> readTemplate(const toolbox::FilePair& file) {
    if (!toolbox::exists(file))
        return FileError{file.data(), "no such file",
                         std::make_error_code(std::errc::no_such_file_or_directory)};
    const auto header = toolbox::readHeader(file);
    if (const auto* const error = std::get_if<FileError>(&header))
        return *error;
    return templateIn(std::get<toolbox::AppleDouble>(header).resourceFork(), file.header());
}

toolbox::OrFileError<CGradientData> templateIn(toolbox::ByteView fork, const std::filesystem::path& file) {
    const auto read = toolbox::ResourceFork::read(fork);
    if (const auto* const damage = std::get_if<toolbox::ForkDamage>(&read))
        return FileError{file, describe(*damage), {}};
    const auto* const resource = std::get<toolbox::ResourceFork>(read).find(kResourceType, kResourceId);
    if (!resource)
        return FileError{file, "it holds no gradient", {}};
    auto gradient = toolbox::gradientFromBytes(resource->data);
    if (const auto* const damage = std::get_if<toolbox::GradientDamage>(&gradient))
        return FileError{file, describe(*damage), {}};
    return std::get<CGradientData>(std::move(gradient));
}

std::optional<toolbox::AppleDouble> templateHeader(const CGradientData& gradient) {
    auto bytes = toolbox::gradientToBytes(gradient);
    if (!bytes)
        return std::nullopt;
    toolbox::ResourceFork fork;
    fork.put({kResourceType, kResourceId, 0, "", std::move(*bytes)});
    auto written = fork.write();
    if (!written)
        return std::nullopt;
    toolbox::AppleDouble header;
    header.setFinderInfo({kTemplateType, kTemplateCreator});
    header.setResourceFork(std::move(*written));
    return header;
}

} // namespace easel::exchange
