#include "easel/export/TextPieces.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace easel::exports {

using drawing::Affine;
using drawing::Point;
using type::Cluster;
using type::SetRun;
using type::SetText;

namespace {

// In ems: what differs less looks alike.
constexpr double kNear = 2e-3;

constexpr const char* kRightToLeftMark = "\u200f";

bool alike(double a, double b) {
    return std::abs(a - b) <= kNear;
}

bool sameGlyphs(const Cluster& cluster, const type::Face& face, const type::Glyph* begin,
                const type::Glyph* end) {
    return cluster.face && *cluster.face == face &&
           std::equal(cluster.glyphs.begin(), cluster.glyphs.end(), begin, end,
                      [](const type::Glyph& a, const type::Glyph& b) {
                          return a.number == b.number && alike(a.x, b.x) && alike(a.y, b.y);
                      });
}

class Pieces {
  public:
    Pieces(const SetText& text, type::Typesetter& typesetter) : text_(text), typesetter_(typesetter) {}

    bool addAll() {
        std::size_t begin = 0;
        for (const SetRun& run : text_.runs) {
            if (!addRun(run, begin))
                return false;
            begin = run.end;
        }
        return true;
    }
    std::vector<TextPiece> take() { return std::move(pieces_); }

  private:
    bool addRun(const SetRun& run, std::size_t begin);
    bool areSideBySide(std::size_t letter, std::size_t next) const;
    bool addStretch(std::size_t begin, std::size_t end);
    // Where each letter from `begin` to `end` stands if these are set by themselves, in ems from the first
    // one on the left; nothing if they are not the same glyphs then.
    std::optional<std::vector<double>> placesAlone(std::size_t begin, std::size_t end,
                                                   bool rightToLeft) const;
    bool standsSo(std::size_t letter, std::size_t other, double distance) const;
    void add(std::size_t begin, std::size_t end);

    const SetText& text_;
    type::Typesetter& typesetter_;
    SetRun run_;
    type::Font font_;
    std::vector<TextPiece> pieces_;
};

bool Pieces::addRun(const SetRun& run, std::size_t begin) {
    if (!run.face || !run.face->asInFile || run.face->shape != Affine() || !run.fromEms.invertible())
        return false;
    run_ = run;
    font_ = *run.font;
    font_.families = run.face->family + "," + font_.families;
    font_.ligatures = true;
    for (std::size_t i = begin; i < run.end;) {
        std::size_t end = i + 1;
        while (end < run.end && areSideBySide(end - 1, end))
            ++end;
        if (!addStretch(i, end))
            return false;
        i = end;
    }
    return true;
}

bool Pieces::areSideBySide(std::size_t letter, std::size_t next) const {
    const std::size_t left = run_.rightToLeft ? next : letter;
    const std::size_t right = run_.rightToLeft ? letter : next;
    return standsSo(right, left, static_cast<double>(text_.letters[left].advance));
}

// Letters side by side are one piece, or each is one.
bool Pieces::addStretch(std::size_t begin, std::size_t end) {
    const auto places = placesAlone(begin, end, run_.rightToLeft);
    bool asSet = places.has_value();
    for (std::size_t i = begin + 1; asSet && i < end; ++i)
        asSet = standsSo(i, i - 1, (*places)[i - begin] - (*places)[i - 1 - begin]);
    if (asSet) {
        add(begin, end);
        return true;
    }
    if (end - begin == 1)
        return false;
    for (std::size_t i = begin; i < end; ++i)
        if (!addStretch(i, i + 1))
            return false;
    return true;
}

std::optional<std::vector<double>> Pieces::placesAlone(std::size_t begin, std::size_t end,
                                                       bool rightToLeft) const {
    const std::string characters(text_.textOf(begin, end));
    const std::vector<Cluster> clusters =
        typesetter_.shape({characters,
                           {{characters.size(), std::make_shared<type::Font>(font_)}},
                           rightToLeft,
                           false,
                           type::Upright::ByScript});
    if (clusters.size() != end - begin)
        return std::nullopt;
    std::vector<double> places(clusters.size());
    double pen = 0;
    for (const Cluster& cluster : clusters) {
        const auto after = std::upper_bound(
            text_.letters.begin(), text_.letters.end(), text_.textBegin(begin) + cluster.begin,
            [](std::size_t place, const type::SetLetter& each) { return place < each.textEnd; });
        const auto letter = static_cast<std::size_t>(after - text_.letters.begin());
        if (letter >= end || text_.textBegin(letter) != text_.textBegin(begin) + cluster.begin ||
            cluster.rightToLeft != run_.rightToLeft ||
            !sameGlyphs(cluster, *run_.face, text_.glyphs.data() + text_.glyphBegin(letter),
                        text_.glyphs.data() + text_.letters[letter].glyphEnd))
            return std::nullopt;
        places[letter - begin] = pen;
        pen += cluster.advance;
    }
    return places;
}

bool Pieces::standsSo(std::size_t letter, std::size_t other, double distance) const {
    const Point between = text_.letters[letter].at - text_.letters[other].at;
    const Point inEms = run_.fromEms.inverse().direction(between);
    return alike(inEms.x, distance) && alike(inEms.y, 0);
}

void Pieces::add(std::size_t begin, std::size_t end) {
    TextPiece piece;
    piece.text = text_.textOf(begin, end);
    // Marks hold what has no direction of its own to that of the letters.
    if (run_.rightToLeft && !placesAlone(begin, end, false))
        piece.text = kRightToLeftMark + piece.text + kRightToLeftMark;
    piece.font = font_;
    piece.size = drawing::length({run_.fromEms.c, run_.fromEms.d});
    piece.frame = run_.fromEms * Affine::scaling(1 / piece.size, 1 / piece.size);
    piece.begin = piece.frame.inverse()(text_.letters[run_.rightToLeft ? end - 1 : begin].at);
    pieces_.push_back(std::move(piece));
}

} // namespace

std::optional<std::vector<TextPiece>> piecesOf(const SetText& text, type::Typesetter& typesetter) {
    Pieces pieces(text, typesetter);
    if (!pieces.addAll())
        return std::nullopt;
    return pieces.take();
}

} // namespace easel::exports
