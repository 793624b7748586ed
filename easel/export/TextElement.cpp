#include "easel/export/TextElement.h"

#include "easel/export/FontText.h"
#include "easel/export/TextPieces.h"
#include "easel/memory/LibraryCall.h"
#include "easel/svg/write/ElementText.h"

#include <algorithm>
#include <cmath>

namespace easel::exports {

using drawing::Affine;
using drawing::Object;
using svg::attribute;

namespace {

// A pen is round to the eye in units that differ in scale by less.
constexpr double kSameScale = 1e-6;

std::string contentText(std::string_view text) {
    std::string content;
    for (const char c : svg::escaped(text)) {
        if (c == '>')
            content += "&gt;";
        else
            content += c;
    }
    return content;
}

std::string placeText(const TextPiece& piece) {
    return attribute("x", piece.begin.x) + attribute("y", piece.begin.y);
}

std::string pieceFont(const TextPiece& piece) {
    return fontText(piece.font) + attribute("font-size", piece.size);
}

// Pieces that one element holds: it has one angle.
bool fitTogether(const TextPiece& a, const TextPiece& b) {
    return a.frame == b.frame;
}

TextElement elementOf(const TextPiece* begin, const TextPiece* end, const Affine& units) {
    const bool sameFont =
        std::all_of(begin, end, [&](const TextPiece& each) { return pieceFont(each) == pieceFont(*begin); });
    TextElement element;
    element.toDrawing = units * begin->frame;
    element.attributes = svg::transformAttribute("transform", element.toDrawing) +
                         attribute("xml:space", "preserve") + (sameFont ? pieceFont(*begin) : "");
    if (end - begin == 1) {
        element.attributes += placeText(*begin);
        element.content = contentText(begin->text);
        return element;
    }
    for (const TextPiece* piece = begin; piece != end; ++piece)
        element.content += "<tspan" + placeText(*piece) + (sameFont ? "" : pieceFont(*piece)) + ">" +
                           contentText(piece->text) + "</tspan>";
    return element;
}

// Whether a pen that is round in the object's units is the same inside the elements.
bool keepsPen(const Object& object, const std::vector<TextPiece>& pieces) {
    if (!drawing::strokes(drawing::styleOf(object)))
        return true;
    if (drawing::penUnitsOf(object) != drawing::unitsOf(object))
        return false;
    return std::all_of(pieces.begin(), pieces.end(), [](const TextPiece& piece) {
        const Affine& frame = piece.frame;
        return std::abs(frame.a * frame.a + frame.b * frame.b - 1) < kSameScale &&
               std::abs(frame.c * frame.c + frame.d * frame.d - 1) < kSameScale &&
               std::abs(frame.a * frame.c + frame.b * frame.d) < kSameScale;
    });
}

} // namespace

bool textElements(const Object& object, std::vector<TextElement>& elements) {
    type::Typesetter* const typesetter = type::typesetter();
    const auto& text = drawing::styleOf(object).text;
    const Affine units = drawing::unitsOf(object);
    if (!typesetter || !text || !units.invertible())
        return false;
    const auto pieces = memory::complete([&] { return piecesOf(*text, *typesetter); });
    if (!pieces || !keepsPen(object, *pieces))
        return false;
    const TextPiece* const end = pieces->data() + pieces->size();
    for (const TextPiece* begin = pieces->data(); begin != end;) {
        const TextPiece* next = begin + 1;
        while (next != end && fitTogether(*begin, *next))
            ++next;
        elements.push_back(elementOf(begin, next, units));
        begin = next;
    }
    return true;
}

} // namespace easel::exports
