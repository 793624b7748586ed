// One object of a drawing. Objects in a drawing are immutable and shared, so that clones and undo cost
// little.
#pragma once

#include "easel/drawing/Group.h"
#include "easel/drawing/Name.h"
#include "easel/drawing/ObjectGradient.h"
#include "easel/drawing/Paint.h"
#include "easel/drawing/Path.h"
#include "easel/drawing/Remainder.h"
#include "easel/drawing/SharedPtr.h"
#include "easel/drawing/Style.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace easel::drawing {

// Values are the kind numbers that plug-ins see; 0 stands for "no object" there.
enum class Kind : std::uint8_t { Rect = 1, Ellipse, Polygon, Path, Polyline, Line, Picture, Text };

inline constexpr Kind kAllKinds[] = {Kind::Rect,     Kind::Ellipse, Kind::Polygon, Kind::Path,
                                     Kind::Polyline, Kind::Line,    Kind::Picture, Kind::Text};

// "rect", "ellipse", "polygon", "path", "polyline", "line", "picture", "text".
std::string_view kindName(Kind kind);
std::optional<Kind> kindFromName(std::string_view name);
// Closed shapes carry gradients: all but polyline, line, picture and text.
bool carriesGradient(Kind kind);

// A set of kinds, such as the filter of a pick.
class KindSet {
  public:
    static KindSet none() { return {}; }
    static KindSet all();
    void add(Kind kind) { bits_ = static_cast<std::uint16_t>(bits_ | bit(kind)); }
    bool has(Kind kind) const { return (bits_ & bit(kind)) != 0; }
    friend bool operator==(const KindSet&, const KindSet&) = default;

  private:
    static std::uint16_t bit(Kind kind) {
        return static_cast<std::uint16_t>(1u << static_cast<unsigned>(kind));
    }
    std::uint16_t bits_ = 0;
};

// What the host's pattern of the fill is. A gradient shows only over a pattern other than None.
enum class FillPattern : std::uint8_t { None, SolidBlack, Other };

// Whether a fill or stroke is the one that the object was read with, or one given since.
enum class PaintOrigin : std::uint8_t { File, Edited };

// The element an object came from: byte offsets in the text of the drawing's source file.
struct ElementSpan {
    std::uint32_t tagBegin = 0; // the '<' of the start tag
    std::uint32_t tagEnd = 0;   // one past its '>'; equal to tagBegin for an object that is in no file
    std::uint32_t use = 0; // number of the use instance it was made by; 0 for the element where it stands

    bool inFile() const { return tagEnd > tagBegin; }
    // The check takes the comparison with 0 behind a defaulted operator for one with a pointer.
    // NOLINTNEXTLINE(modernize-use-nullptr)
    friend auto operator<=>(const ElementSpan&, const ElementSpan&) = default;
};

struct Object {
    Kind kind = Kind::Path;
    FillRule fillRule = FillRule::NonZero;
    FillPattern fillPattern = FillPattern::None;
    PaintOrigin fillOrigin : 1 = PaintOrigin::File;
    PaintOrigin strokeOrigin : 1 = PaintOrigin::File;
    ElementSpan source;
    Name id;                       // the element's id, UTF-8
    Path outline;                  // in drawing coordinates
    SharedPtr<const Affine> units; // from the object's own units to the drawing; null: they are the same
    SharedPtr<const Style> style;  // null: not stroked, opaque
    Paint fill;                    // what fills the object when it has no record
    ObjectGradient gradient;       // the tool's record; empty: none
    RemainderPtr remainder;        // what the record cannot hold
    GroupPtr group;                // innermost layer; null: the drawing itself
    // Painted over fill and stroke as far as the object itself shows, back to front: arrow heads and the
    // like, what a picture made of shapes holds, and what of a text has paints of its own. Their groups are
    // theirs alone. Null: none.
    SharedPtr<const std::vector<SharedPtr<const Object>>> markers;

    // Tight box of the outline, without stroke. Kept by `sealed`.
    Box bounds;

    // These give the object another fill, from now on stated by the user, not the file; what it has already
    // changes nothing.
    void setFillPattern(FillPattern pattern);
    // Changes the record of the gradient that the object has, or gives it one. What the record cannot hold
    // stays.
    void setGradient(const ObjectGradient& newGradient);
    // The whole gradient; the remainder may be null.
    void setWholeGradient(const ObjectGradient& newGradient, RemainderPtr newRemainder);
    // Strokes the object with another paint from now on; the pen stays.
    void setStrokePaint(Paint paint);

    bool showsGradient() const;
    // Whether the point is inside by the fill rule, or within `reach` of the outline (drawing units).
    bool hitBy(Point p, double reach) const;
    // Everything that painting the object alone may touch: outline and stroke.
    Box paintBounds() const;
    // What its group `within` (null: the drawing) shows of it: the region of the outermost filter on the way
    // there, or all that painting it may touch.
    Box boundsWithin(const Group* within) const;
    Box shownBounds() const { return group ? boundsWithin(nullptr) : paintBounds(); }
};

using ObjectPtr = SharedPtr<const Object>;

// Makes an object fit for a drawing: computes its bounds.
ObjectPtr sealed(Object object);

// Whether two objects are written as the same and look the same. Shared parts are compared by identity.
bool saysTheSame(const Object& a, const Object& b);

// The style that a null style stands for.
const Style& plainStyle();
inline const Style& styleOf(const Object& object) {
    return object.style ? *object.style : plainStyle();
}

// The map from the object's own units to the drawing.
inline Affine unitsOf(const Object& object) {
    return object.units ? *object.units : Affine();
}

// The map from the units of the stroke's lengths to the drawing, which is the shape of the pen.
inline Affine penUnitsOf(const Object& object) {
    return styleOf(object).stroke.inDrawingUnits ? Affine() : unitsOf(object);
}

} // namespace easel::drawing
