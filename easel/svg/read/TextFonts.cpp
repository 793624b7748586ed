#include "easel/svg/read/TextFonts.h"

#include "easel/files/WholeFile.h"
#include "easel/svg/read/FontReader.h"
#include "easel/svg/read/PlaceBeside.h"
#include "easel/svg/text/DataUri.h"
#include "easel/type/LoadedFont.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace easel::svg {

namespace {

constexpr std::size_t kMostBytes = std::size_t{64} << 20; // of all fonts together
// What opening a font costs, in points.
constexpr std::size_t kOpening = 10'000;

} // namespace

type::Typesetter* TextFonts::typesetter() {
    type::Typesetter* const system = type::typesetter();
    if (!std::exchange(made_, true) && system)
        make(*system);
    return own_ ? own_.get() : system;
}

void TextFonts::make(type::Typesetter& system) {
    // Of faces that are the same otherwise, the last counts.
    const auto& rules = cascade_.fontFaces();
    for (auto rule = rules.rbegin(); rule != rules.rend(); ++rule)
        if (const auto face = parseFontFace(*rule))
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
            return loaded_.push_back({face.font, nullptr, source.text, face.weights, face.characters});
        }
        if (addReferred(face, source.text, system))
            return;
        isElsewhere = isElsewhere || (localId(source.text).empty() && !isDataUri(source.text) &&
                                      !placeBeside(around_.file, source.text));
    }
    notes_.add(isElsewhere ? Unsupported::FontElsewhere : Unsupported::FontUnreadable);
}

bool TextFonts::addReferred(const FontFace& face, std::string_view reference, type::Typesetter& system) {
    if (const std::string_view id = localId(reference); !id.empty()) {
        auto drawn = readFont(tree_, tree_.byId(id), face.font, budget_);
        if (!drawn)
            return false;
        drawn->characters = face.characters;
        drawn_.push_back(*std::move(drawn));
        return true;
    }
    std::string bytes = bytesOf(reference);
    if (bytes.empty() || bytes.size() > kMostBytes - bytesRead_)
        return false;
    budget_.spend(kOpening);
    bytesRead_ += bytes.size();
    auto letters = system.load(std::move(bytes));
    const bool isGood = letters != nullptr;
    if (isGood)
        loaded_.push_back({face.font, std::move(letters), {}, face.weights, face.characters});
    return isGood;
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
