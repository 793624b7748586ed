// Chooses the format by the ending of a file's name.
#include "easel/exchange/GradientFiles.h"

#include "easel/classic/HostNames.h"
#include "easel/classic/MacBinary.h"
#include "easel/classic/MacRoman.h"
#include "easel/classic/PairCommit.h"
#include "easel/exchange/CssGradient.h"
#include "easel/exchange/Ggr.h"
#include "easel/exchange/SvgGradient.h"
#include "easel/exchange/TemplateFile.h"
#include "easel/files/AtomicFile.h"
#include "easel/files/WholeFile.h"

namespace fs = std::filesystem;

namespace easel::exchange {
namespace {

using files::FileError;
using files::OrFileError;

constexpr std::uintmax_t kLargestFile = 64U << 20;

enum class Format { Template, MacBinary, Ggr, Svg, Css, Unknown };

Format formatOf(const fs::path& file) {
    auto ending = file.extension().string();
    for (char& c : ending)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    if (ending == ".grd")
        return Format::Template;
    if (ending == ".bin")
        return Format::MacBinary;
    if (ending == ".ggr")
        return Format::Ggr;
    if (ending == ".svg")
        return Format::Svg;
    return ending == ".css" ? Format::Css : Format::Unknown;
}

FileError unknownFormat(const fs::path& file) {
    return {file, std::string("its ending is none of ") + kFormatsInWords, {}};
}

classic::FilePair pairAt(const fs::path& file) {
    const auto folder = file.parent_path();
    return {folder.empty() ? fs::path(".") : folder, file.filename().string()};
}

OrFileError<ImportedGradient> named(OrFileError<CGradientData> gradient) {
    if (auto* const error = std::get_if<FileError>(&gradient))
        return std::move(*error);
    return ImportedGradient{std::get<CGradientData>(std::move(gradient)), {}, {}};
}

OrFileError<ImportedGradient> importMacBinary(const files::Bytes& bytes, const fs::path& file) {
    const auto binary = classic::readMacBinary(bytes);
    if (!binary)
        return FileError{file, "it is no MacBinary file of version 2", {}};
    return named(templateIn(binary->resourceFork, file));
}

OrFileError<ImportedGradient> imported(ImportOutcome outcome, const fs::path& file) {
    if (const auto* const none = std::get_if<NoGradient>(&outcome))
        return FileError{file, none->reason, {}};
    return std::get<ImportedGradient>(std::move(outcome));
}

OrFileError<std::vector<std::string>> written(const ExportedGradient& exported, const fs::path& file) {
    if (const auto failure = files::replaceFile(file, exported.text))
        return *failure;
    return exported.notes;
}

OrFileError<std::vector<std::string>> exportMacBinary(const classic::AppleDouble& header,
                                                      const std::string& name, const fs::path& file) {
    const auto fork = header.resourceFork();
    const classic::MacBinaryFile binary{classic::toMacRoman(name + ".GRD").text,
                                        header.finderInfo(),
                                        {},
                                        {fork.begin(), fork.end()},
                                        classic::dateNow()};
    if (const auto failure = files::replaceFile(file, classic::writeMacBinary(binary)))
        return *failure;
    return std::vector<std::string>();
}

OrFileError<std::vector<std::string>> exportTemplate(const classic::AppleDouble& header, const fs::path& file,
                                                     const files::Trash& trash) {
    if (const auto failure = classic::writePair(pairAt(file), header, trash))
        return *failure;
    return std::vector<std::string>();
}

} // namespace

OrFileError<ImportedGradient> importFile(const fs::path& file) {
    const auto format = formatOf(file);
    if (format == Format::Unknown)
        return unknownFormat(file);
    if (format == Format::Template)
        return named(readTemplate(pairAt(file)));
    if (format == Format::Svg)
        return imported(readSvg(file), file);
    const auto read = files::readWholeFile(file, kLargestFile);
    if (const auto* const error = std::get_if<FileError>(&read))
        return *error;
    const auto& bytes = std::get<files::Bytes>(read);
    if (format == Format::MacBinary)
        return importMacBinary(bytes, file);
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return imported(format == Format::Ggr ? readGgr(text) : readCss(text), file);
}

OrFileError<std::vector<std::string>> exportFile(const CGradientData& gradient, const std::string& name,
                                                 const fs::path& file, const files::Trash& trash) {
    const auto header = templateHeader(gradient);
    if (!header)
        return FileError{file, "a gradient without colors cannot be written", {}};
    switch (formatOf(file)) {
    case Format::Template:
        return exportTemplate(*header, file, trash);
    case Format::MacBinary:
        return exportMacBinary(*header, name, file);
    case Format::Ggr:
        return written(writeGgr(gradient, name), file);
    case Format::Svg:
        return written(writeSvg(gradient), file);
    case Format::Css:
        return written(writeCss(gradient), file);
    case Format::Unknown:
        break;
    }
    return unknownFormat(file);
}

} // namespace easel::exchange
