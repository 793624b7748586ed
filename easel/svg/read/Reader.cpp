// Reads an SVG file into a drawing.
#include "easel/files/WholeFile.h"
#include "easel/svg/Document.h"
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/text/Source.h"
#include "easel/svg/text/Tags.h"

#include <memory>
#include <new>
#include <string>
#include <utility>

namespace easel::svg {

using drawing::Drawing;

namespace {

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

Drawing readDrawing(std::string bytes, const ReadOptions& options) {
    if (bytes.empty())
        throw ReadError{Fault::Empty, "the file is empty"};
    auto source = std::make_shared<Source>();
    source->encoding = detectEncoding(bytes);
    source->bytes = std::move(bytes);
    if (source->encoding != Encoding::Utf8)
        source->decoded = decode(source->bytes, source->encoding);
    const std::string& text = source->text();
    if (source->bytes.size() > options.largestFile || text.size() > kLargestText)
        throw ReadError{Fault::TooLarge, "the file is too large"};

    const XmlTree tree(text);
    source->prefix = tree.prefix();
    source->rootTag = tree.tagBegin(tree.root());
    source->ownBlock = findOwnBlock(tree, text);
    const Cascade cascade(tree);
    source->sheetsStateFill = cascade.sheetsStateFill();
    PaintServers servers(tree, cascade);
    Budget budget(text.size());
    Notes notes;
    if (cascade.sheetsImport())
        notes.add(Unshown::ExternalSheet);
    const Scene scene{tree, cascade, servers, budget, notes};
    TreeReader reader(scene, *source, options.progress);
    reader.readRoot();
    source->objects.shrink_to_fit();
    return {reader.size().width, reader.size().height, reader.takeObjects(), std::move(source),
            notes.sentences()};
}

} // namespace

ReadResult readBytes(std::string bytes, const std::string& name, const ReadOptions& options) {
    try {
        return readDrawing(std::move(bytes), options);
    } catch (const ReadError& error) {
        return Failure{error.fault, name + ": " + error.reason};
    } catch (const std::bad_alloc&) {
        return Failure{Fault::TooLarge, name + ": there is not enough memory for it"};
    }
}

ReadResult readFile(const std::filesystem::path& file, const ReadOptions& options) {
    try {
        auto content = files::readWholeFile(file, options.largestFile);
        if (const auto* const error = std::get_if<files::FileError>(&content))
            return Failure{Fault::CannotRead, error->message()};
        const auto& bytes = std::get<files::Bytes>(content);
        return readBytes({bytes.begin(), bytes.end()}, file.string(), options);
    } catch (const std::bad_alloc&) {
        return Failure{Fault::TooLarge, file.string() + ": there is not enough memory for it"};
    }
}

} // namespace easel::svg
