// Writes drawings as SVG files.
#include "easel/files/AtomicFile.h"
#include "easel/files/Gzip.h"
#include "easel/files/MemoryErrors.h"
#include "easel/svg/Document.h"
#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Source.h"
#include "easel/svg/write/ElementText.h"
#include "easel/svg/write/GradientText.h"
#include "easel/svg/write/ObjectText.h"
#include "easel/svg/write/ReadBack.h"
#include "easel/svg/write/Rewriter.h"

namespace easel::svg {

using drawing::Drawing;
using drawing::Snapshot;

namespace {

std::string newFile(const Snapshot& drawing) {
    GradientBlock gradients({}, {});
    std::string objects;
    drawing.forEach([&](const drawing::ObjectPtr& object) {
        objects += "  " + objectText(*object, drawing::Affine(), {}, gradients) + '\n';
    });
    std::string text =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + documentTag(drawing.width, drawing.height) + '\n';
    if (!gradients.empty())
        text += std::string("  <defs ") + kOwnBlockAttribute + "=\"" + kOwnBlockValue + "\">" +
                gradients.text("\n    ") + "\n  </defs>\n";
    return text + objects + "</svg>\n";
}

enum class Packing : std::uint8_t { None, Gzip };

const Source* sourceOf(const Snapshot& drawing) {
    return dynamic_cast<const Source*>(drawing.source.get());
}

Packing packingOf(const Source* source) {
    return source && !source->packed.empty() ? Packing::Gzip : Packing::None;
}

// Its own file stays as it is, compressed or not; of others the name decides.
Packing packingFor(const std::filesystem::path& file, const Source* source) {
    std::error_code gone;
    if (source && (file == source->file || std::filesystem::equivalent(file, source->file, gone)))
        return packingOf(source);
    return equalIgnoringCase(file.extension().string(), ".svgz") ? Packing::Gzip : Packing::None;
}

std::string unpackedBytes(const Snapshot& drawing) {
    const Source* const source = sourceOf(drawing);
    return source ? Rewriter(drawing, *source).rewritten() : newFile(drawing);
}

// Another program may have compressed the bytes of the file in another way; unchanged, they stay as they are.
std::string packed(std::string bytes, const Source* source, Packing packing) {
    if (packing == Packing::None)
        return bytes;
    const bool unchanged = packingOf(source) == Packing::Gzip && bytes == source->bytes;
    return unchanged ? source->packed : files::packedGzip(bytes);
}

// What a save puts into that file; an error if that would not give every fill again.
files::Result<std::string> checkedBytes(const Snapshot& drawing, const std::filesystem::path& file) {
    const Source* const source = sourceOf(drawing);
    std::string bytes = unpackedBytes(drawing);
    if (!source || bytes != source->bytes)
        if (const auto lost = lostIn(bytes, drawing))
            return tl::unexpected(files::Error{file, *lost + "; nothing was saved", {}});
    return packed(std::move(bytes), source, packingFor(file, source));
}

} // namespace

std::string toBytes(const Snapshot& drawing) {
    const Source* const source = sourceOf(drawing);
    return packed(unpackedBytes(drawing), source, packingOf(source));
}

std::string toBytes(const Drawing& drawing) {
    return toBytes(drawing.snapshot());
}

std::string openedBytes(const Drawing& drawing) {
    const auto* const source = dynamic_cast<const Source*>(drawing.source().get());
    if (!source)
        return {};
    return source->packed.empty() ? source->bytes : source->packed;
}

files::Result<std::string> bytesFor(const Drawing& drawing, const std::filesystem::path& file) {
    try {
        return checkedBytes(drawing.snapshot(), file);
    } catch (const std::bad_alloc&) {
        return tl::unexpected(files::notEnoughMemoryToWrite(file));
    }
}

files::Result<> saveFile(Drawing& drawing, const std::filesystem::path& file) {
    const auto bytes = bytesFor(drawing, file);
    if (!bytes)
        return tl::unexpected(bytes.error());
    return files::replaceFile(file, std::string_view(*bytes)).map([&] { drawing.markSaved(); });
}

} // namespace easel::svg
