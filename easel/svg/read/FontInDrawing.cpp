#include "easel/svg/read/FontInDrawing.h"

#include "easel/files/Gzip.h"
#include "easel/svg/read/FontReader.h"
#include "easel/svg/text/Encoding.h"
#include "easel/text/Ascii.h"

#include <utility>

namespace easel::svg {

namespace {

// How many bytes cost as much as a point.
constexpr std::size_t kBytesParsed = 4;

pugi::xml_node fontElement(const XmlTree& tree, std::string_view reference) {
    if (!reference.empty())
        return tree.byId(localId(reference));
    pugi::xml_node element = tree.root();
    while (element && tree.svgName(element) != "font")
        element = nextInside(tree.root(), element);
    return element;
}

std::optional<type::DrawnFont> readFontInText(const std::string& text, std::string_view reference,
                                              const type::Font& named, Budget& budget) {
    budget.spend(text.size() / kBytesParsed);
    try {
        const XmlTree tree(text);
        return readFont(tree, fontElement(tree, reference), named, budget);
    } catch (const ReadError& error) {
        if (error.code == Fault::TooComplex)
            throw;
        return std::nullopt;
    }
}

} // namespace

bool mayHoldFonts(std::string_view bytes) {
    constexpr std::string_view kBegins = "<\xEF\xFE\xFF";
    return files::isGzip(bytes) ||
           (!bytes.empty() &&
            (text::isSpace(bytes.front()) || kBegins.find(bytes.front()) != std::string_view::npos));
}

std::optional<type::DrawnFont> readFontIn(std::string bytes, std::string_view reference, std::size_t limit,
                                          const type::Font& named, Budget& budget) {
    if (files::isGzip(bytes)) {
        auto unpacked = files::unpackedGzip(bytes, limit);
        if (!unpacked)
            return std::nullopt;
        bytes = *std::move(unpacked);
    }
    const Encoding encoding = detectEncoding(bytes);
    return readFontInText(encoding == Encoding::Utf8 ? std::move(bytes) : decode(bytes, encoding), reference,
                          named, budget);
}

} // namespace easel::svg
