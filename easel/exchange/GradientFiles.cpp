// Chooses the format by the ending of a file's name.
#include "easel/exchange/GradientFiles.h"

#include "easel/classic/HostNames.h"
#include "easel/classic/MacBinary.h"
#include "easel/classic/MacRoman.h"
#include "easel/classic/PairCommit.h"
#include "easel/classic/TemplateInfo.h"
#include "easel/exchange/CssGradient.h"
#include "easel/exchange/Ggr.h"
#include "easel/exchange/SvgGradient.h"
#include "easel/exchange/TemplateFile.h"
#include "easel/files/AtomicFile.h"
#include "easel/files/WholeFile.h"
#include "easel/text/Ascii.h"

namespace fs = std::filesystem;

namespace easel::exchange {
namespace {

using files::Error;
using files::Result;

constexpr std::uintmax_t kLargestFile = 64U << 20;

enum class Format { Template, MacBinary, Ggr, Svg, Css, Unknown };

Format formatOf(const fs::path& file) {
    const std::string ending = text::lowerCase(file.extension().string());
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

Error unknownFormat(const fs::path& file) {
    return {file, std::string("its ending is none of ") + kFormatsInWords, {}};
}

classic::FilePair pairAt(const fs::path& file) {
    const auto folder = file.parent_path();
    return {folder.empty() ? fs::path(".") : folder, file.filename().string()};
}

ImportedGradient nameless(const CGradientData& gradient) {
    return {gradient, {}, {}};
}

Result<ImportedGradient> importMacBinary(const files::Bytes& bytes, const fs::path& file) {
    const auto binary = classic::readMacBinary(bytes);
    if (!binary)
        return tl::unexpected(Error{file, "it is no MacBinary file of version 2", {}});
    return templateIn(binary->resourceFork, file).map(nameless);
}

// These formats hold all of a gradient.
std::vector<std::string> noNotes() {
    return {};
}

Result<std::vector<std::string>> written(const ExportedGradient& exported, const fs::path& file) {
    return files::replaceFile(file, exported.text).map([&] { return exported.notes; });
}

Result<std::vector<std::string>> exportMacBinary(const classic::AppleDouble& header, const std::string& name,
                                                 const fs::path& file) {
    const auto fork = header.resourceFork();
    const classic::MacBinaryFile binary{classic::toMacRoman(name + classic::kTemplateEnding).value_or(""),
                                        header.finderInfo(),
                                        {},
                                        {fork.begin(), fork.end()},
                                        classic::dateNow()};
    return files::replaceFile(file, classic::writeMacBinary(binary)).map(noNotes);
}

Result<std::vector<std::string>> exportTemplate(const classic::AppleDouble& header, const fs::path& file,
                                                const files::Trash& trash) {
    return classic::writePair(pairAt(file), header, trash).map(noNotes);
}

} // namespace

Result<ImportedGradient> importFile(const fs::path& file) {
    const auto format = formatOf(file);
    if (format == Format::Unknown)
        return tl::unexpected(unknownFormat(file));
    if (format == Format::Template)
        return readTemplate(pairAt(file)).map(nameless);
    if (format == Format::Svg)
        return readSvg(file);
    const auto read = files::readWholeFile(file, kLargestFile);
    if (!read)
        return tl::unexpected(read.error());
    if (format == Format::MacBinary)
        return importMacBinary(*read, file);
    const std::string_view text = files::charactersOf(*read);
    return format == Format::Ggr ? readGgr(text, file) : readCss(text, file);
}

Result<std::vector<std::string>> exportFile(const CGradientData& gradient, const std::string& name,
                                            const fs::path& file, const files::Trash& trash) {
    const auto header = templateHeader(gradient);
    if (!header)
        return tl::unexpected(Error{file, "a gradient without colors cannot be written", {}});
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
    return tl::unexpected(unknownFormat(file));
}

} // namespace easel::exchange
