#include "easel/svg/read/TextFonts.h"

#include "easel/files/WholeFile.h"
#include "easel/svg/read/FontFaceElement.h"
#include "easel/svg/read/FontInDrawing.h"
#include "easel/svg/read/FontReader.h"
#include "easel/svg/read/PlaceBeside.h"
#include "easel/svg/text/DataUri.h"
#include "easel/type/LoadedFont.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

namespace easel::svg {

namespace {

constexpr std::size_t kMostBytes = std::size_t{64} << 20; // of all fonts together
// What opening a font costs, in points.
constexpr std::size_t kOpening = 10'000;

std::size_t bytesBetweenTags(const XmlTree& tree) {
    std::size_t bytes = 0;
    for (pugi::xml_node node = tree.root(); node; node = nextInside(tree.root(), node)) {
        const bool isText = node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
        if (isText && tree.svgName(node.parent()) != "style")
            bytes += std::strlen(node.value());
    }
    return bytes;
}

} // namespace

type::Typesetter* TextFonts::typesetter() {
    type::Typesetter* const system = type::typesetter();
    if (!std::exchange(made_, true) && system) {
        budget_.allowText(bytesBetweenTags(tree_));
        make(*system);
    }
    return own_ ? own_.get() : system;
}

void TextFonts::make(type::Typesetter& system) {
    std::vector<FontFace> faces = readFontFaces(tree_);
    for (const auto& rule : cascade_.fontFaces())
        if (auto face = parseFontFace(rule))
            faces.push_back(*std::move(face));
    // Of faces that are the same otherwise, the last counts.
    for (auto face = faces.rbegin(); face != faces.rend(); ++face)
        add(*face, system);
    std::vector<type::DrawnFont> elements = readFonts(tree_, budget_);
    std::move(elements.begin(), elements.end(), std::back_inserter(drawn_));
    if (!drawn_.empty() || !loaded_.empty())
        own_ = std::make_unique<type::DrawnTypesetter>(std::move(drawn_), system, std::move(loaded_));
}

void TextFonts::add(const FontFace& face, type::Typesetter& system) {
    bool isElsewhere = false;
    for (const FontSource& source : face.sources) {
        if (source.kind == FontSource::Kind::System) {
            if (!system.has(source.text))
                continue;
            return loaded_.push_back(
                {face.font, nullptr, source.text, face.weights, face.variations, face.characters});
        }
        if (addReferred(face, source.text, system))
            return;
        isElsewhere = isElsewhere || (localId(source.text).empty() && !isDataUri(source.text) &&
                                      !placeBeside(around_.file, source.text));
    }
    notes_.add(isElsewhere ? Unsupported::FontElsewhere : Unsupported::FontUnreadable);
}

bool TextFonts::addReferred(const FontFace& face, std::string_view reference, type::Typesetter& system) {
    if (const std::string_view id = localId(reference); !id.empty())
        return addDrawn(face, readFont(tree_, tree_.byId(id), face.font, budget_));
    std::string bytes = bytesOf(reference);
    if (bytes.empty() || bytes.size() > kMostBytes - bytesRead_)
        return false;
    budget_.spend(kOpening);
    bytesRead_ += bytes.size();
    if (mayHoldFonts(bytes)) {
        const std::size_t mark = std::min(reference.find('#'), reference.size());
        return addDrawn(face,
                        readFontIn(std::move(bytes), reference.substr(mark), kMostBytes, face.font, budget_));
    }
    auto letters = system.load(std::move(bytes));
    const bool isGood = letters != nullptr;
    if (isGood)
        loaded_.push_back(
            {face.font, std::move(letters), {}, face.weights, face.variations, face.characters});
    return isGood;
}

bool TextFonts::addDrawn(const FontFace& face, std::optional<type::DrawnFont> font) {
    if (!font)
        return false;
    font->characters = face.characters;
    drawn_.push_back(*std::move(font));
    return true;
}

// Empty if there are none that may be read.
std::string TextFonts::bytesOf(std::string_view reference) {
    if (isDataUri(reference)) {
        auto data = parseDataUri(reference);
        return data ? std::move(data->bytes) : std::string();
    }
    const auto place = placeBeside(around_.file, reference);
    if (!place)
        return {};
    const auto bytes = files::readWholeFile(*place, kMostBytes);
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string();
}

} // namespace easel::svg
