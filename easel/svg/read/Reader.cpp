// Reads an SVG file into a drawing.
#include "easel/files/Gzip.h"
#include "easel/files/MemoryErrors.h"
#include "easel/files/WholeFile.h"
#include "easel/svg/Document.h"
#include "easel/svg/read/TextFonts.h"
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/text/Source.h"
#include "easel/svg/text/Tags.h"

#include <malloc.h>

#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace easel::svg {

using drawing::Drawing;
using files::Error;
using files::Result;

namespace {

// What reading these took is worth being looked for and given back to the system.
constexpr std::size_t kLargeText = std::size_t{1} << 20;
// Spans are kept in 32 bits.
constexpr std::uintmax_t kLargestText = UINT32_MAX;

// Our block of gradients, if the file has one: a child of the root.
Span findOwnBlock(const XmlTree& tree, const std::string& text) {
    for (const pugi::xml_node child : tree.root().children()) {
        if (tree.svgName(child) != "defs" ||
            std::string_view(child.attribute(kOwnBlockAttribute).value()) != kOwnBlockValue)
            continue;
        const std::size_t begin = tree.tagBegin(child);
        return {begin, elementEnd(text, begin)};
    }
    return {};
}

std::string unpacked(std::string_view bytes, std::uintmax_t limit) {
    auto content = files::unpackedGzip(bytes, limit);
    if (content)
        return *std::move(content);
    if (content.error() == files::GzipFault::TooLarge)
        throw ReadError{std::make_error_code(std::errc::file_too_large),
                        "the file is too large when it is unpacked"};
    throw ReadError{Fault::Damaged, "it is compressed, and what it holds is damaged or cut off"};
}

void setBytes(Source& source, std::string bytes, std::uintmax_t limit) {
    if (files::isGzip(bytes)) {
        source.packed = std::move(bytes);
        bytes = unpacked(source.packed, limit);
    }
    if (bytes.empty())
        throw ReadError{Fault::Empty, "the file is empty"};
    source.encoding = detectEncoding(bytes);
    source.bytes = std::move(bytes);
}

struct Content {
    DrawingSize size;
    std::vector<drawing::ObjectPtr> objects; // back to front
    std::vector<std::string> notes;
};

// What the source's text shows. The tree of its elements goes at the end: it takes several times the text.
Content readContent(Source& source, const ReadOptions& options) {
    const std::string& text = source.text();
    const XmlTree tree(text);
    source.prefix = tree.prefix();
    source.rootTag = tree.tagBegin(tree.root());
    source.ownBlock = findOwnBlock(tree, text);
    const Cascade cascade(tree);
    source.sheetsStateFill = cascade.sheetsStateFill();
    source.sheetsStateStroke = cascade.sheetsStateStroke();
    PaintServers servers(tree, cascade);
    Budget budget(text.size());
    Notes notes;
    if (cascade.sheetsImport())
        notes.add(Unsupported::ExternalSheet);
    const Surroundings around{source.file, {}};
    TextFonts fonts(tree, cascade, around, budget, notes);
    const Scene scene{tree, cascade, servers, budget, notes, around, fonts};
    TreeReader reader(scene, source, options.progress);
    reader.readRoot();
    if (servers.circular())
        notes.add(Unsupported::Circle);
    if (servers.linearLight())
        notes.add(Unsupported::LinearLight);
    return {reader.size(), reader.takeObjects(), notes.sentences()};
}

Drawing readDrawing(std::string bytes, std::filesystem::path file, const ReadOptions& options) {
    auto source = std::make_shared<Source>();
    setBytes(*source, std::move(bytes), options.largestFile);
    source->file = std::move(file);
    if (source->encoding != Encoding::Utf8)
        source->decoded = decode(source->bytes, source->encoding);
    if (source->bytes.size() > options.largestFile || source->text().size() > kLargestText)
        throw ReadError{std::make_error_code(std::errc::file_too_large), "the file is too large"};
    const bool large = source->text().size() > kLargeText;
    Content content = readContent(*source, options);
    source->objects.shrinkToFit();
    Drawing drawing(content.size.width, content.size.height, std::move(content.objects), std::move(source),
                    std::move(content.notes));
    if (large)
        malloc_trim(0);
    return drawing;
}

// The bytes themselves are given back.
std::string takenAsText(files::Bytes& bytes) {
    std::string text(bytes.begin(), bytes.end());
    bytes = files::Bytes();
    return text;
}

// `source` is the file that the bytes are from, empty if they are from none.
Result<Drawing> readNamed(std::string bytes, const std::filesystem::path& name,
                          const std::filesystem::path& source, const ReadOptions& options) {
    try {
        return readDrawing(std::move(bytes), source, options);
    } catch (const ReadError& error) {
        return tl::unexpected(Error{name, error.reason, error.code});
    } catch (const std::bad_alloc&) {
        return tl::unexpected(files::tooLargeForMemory(name));
    }
}

} // namespace

Result<Drawing> readBytes(std::string bytes, const std::filesystem::path& file, const ReadOptions& options) {
    return readNamed(std::move(bytes), file, {}, options);
}

Result<Drawing> readBytesOf(const std::filesystem::path& file, std::string bytes,
                            const ReadOptions& options) {
    return readNamed(std::move(bytes), file, file, options);
}

Result<Drawing> readFile(const std::filesystem::path& file, const ReadOptions& options) {
    try {
        return files::readWholeFile(file, options.largestFile).and_then([&](files::Bytes bytes) {
            return readNamed(takenAsText(bytes), file, file, options);
        });
    } catch (const std::bad_alloc&) {
        return tl::unexpected(files::tooLargeForMemory(file));
    }
}

} // namespace easel::svg
