#include "easel/svg/read/EmbeddedDrawing.h"
#include "easel/svg/read/TextFonts.h"

#include "easel/svg/read/TreeReader.h"
#include "easel/svg/text/Encoding.h"
#include "easel/svg/text/Source.h"

#include <algorithm>

namespace easel::svg {

namespace {

// Drawings in drawings are read by recursion.
constexpr std::size_t kDeepest = 4;
// How many bytes of text cost as much as a point.
constexpr std::size_t kBytesRead = 4;
// What the smallest costs.
constexpr std::size_t kReading = 500;

std::optional<std::vector<drawing::ObjectPtr>> readTree(const ShapePicture& picture, const Scene& outer,
                                                        const PlaceEmbedded& place) {
    Source source;
    source.bytes = picture.bytes;
    source.encoding = detectEncoding(source.bytes);
    if (source.encoding != Encoding::Utf8)
        source.decoded = decode(source.bytes, source.encoding);
    const XmlTree tree(source.text());
    const Cascade cascade(tree);
    PaintServers servers(tree, cascade);
    Surroundings around = outer.around;
    around.file = picture.file;
    around.open.push_back(&picture);
    TextFonts fonts(tree, cascade, around, outer.budget, outer.notes);
    const Scene scene{tree, cascade, servers, outer.budget, outer.notes, around, fonts};
    TreeReader reader(scene, source, {});
    if (!reader.readPlaced(place))
        return std::nullopt;
    return reader.takeObjects();
}

} // namespace

std::optional<std::vector<drawing::ObjectPtr>> readEmbedded(const ShapePicture& picture, const Scene& outer,
                                                            const PlaceEmbedded& place) {
    const auto& open = outer.around.open;
    const bool circular = std::any_of(open.begin(), open.end(), [&](const ShapePicture* other) {
        return other == &picture || (!picture.file.empty() && other->file == picture.file);
    });
    if (circular || open.size() == kDeepest) {
        outer.notes.add(circular ? Unsupported::Circle : Unsupported::DeepLayer);
        return std::nullopt;
    }
    outer.budget.spend(kReading + picture.bytes.size() / kBytesRead);
    try {
        return readTree(picture, outer, place);
    } catch (const ReadError& error) {
        if (error.code == Fault::TooComplex)
            throw;
        outer.notes.add(Unsupported::PictureDamaged);
        return std::nullopt;
    }
}

} // namespace easel::svg
