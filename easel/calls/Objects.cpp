// Objects of a drawing as the host interface hands them out.
#include "host/Objects.h"

#include "easel/drawing/ShapeGradient.h"
#include "easel/runtime/HostObject.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/Journal.h"

#include <utility>

namespace drawing = easel::drawing;
using easel::runtime::journal;

namespace {

// Anything with fewer corners has no inside that a gradient could fill.
constexpr std::size_t kFewestCorners = 3;

const drawing::Object* objectOf(TessObject const* object) {
    return object && object->State() ? object->State()->object.get() : nullptr;
}

// Lets a function change an object: not the one it shares with others, but one of its own.
template <class Change> void changeOwn(const std::shared_ptr<HostObject>& state, Change change) {
    if (!state)
        return;
    drawing::Object own = *state->object;
    change(own);
    state->object = std::make_shared<const drawing::Object>(std::move(own));
}

const SharedResourcePtr<CPatRecord>& blackPattern() {
    static const SharedResourcePtr<CPatRecord> black(
        new CPatRecord({0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff}));
    return black;
}

drawing::FillPattern patternKind(SharedResourcePtr<CPatRecord> const& pattern) {
    const CPatRecord* rows = pattern;
    if (!rows)
        return drawing::FillPattern::None;
    const CPatRecord* black = blackPattern();
    return rows->Rows() == black->Rows() ? drawing::FillPattern::SolidBlack : drawing::FillPattern::Other;
}

// All corners finite and enough of them in at least one contour; otherwise an empty path.
drawing::Path polygonOutline(const drawing::Path& outline, double tolerance) {
    drawing::Path polygon;
    bool hasInside = false;
    for (const drawing::Contour& contour : flatten(outline, tolerance)) {
        for (std::size_t i = 0; i < contour.points.size(); ++i) {
            if (!isFinite(contour.points[i]))
                return {};
            if (i == 0)
                polygon.moveTo(contour.points[i]);
            else
                polygon.lineTo(contour.points[i]);
        }
        polygon.close();
        hasInside = hasInside || contour.points.size() >= kFewestCorners;
    }
    return hasInside ? polygon : drawing::Path();
}

} // namespace

CPatRecord::~CPatRecord() = default;

std::uint32_t CPatRecord::HashID() const {
    std::uint32_t hash = 2166136261u;
    for (const std::uint8_t row : rows_)
        hash = (hash ^ row) * 16777619u;
    return hash;
}

SharedResourcePtr<CPatRecord> kBlackPat() {
    journal("kBlackPat");
    return blackPattern();
}

short TessObject::WhatObject() const {
    journal("TessObject::WhatObject");
    const drawing::Object* object = objectOf(this);
    return object ? static_cast<short>(object->kind) : short{0};
}

TRect<double> TessObject::BBox() const {
    journal("TessObject::BBox");
    const drawing::Object* object = objectOf(this);
    return object ? easel::runtime::toHost(object->bounds) : TRect<double>();
}

SharedResourcePtr<CGradient> TessObject::GetGradient() const {
    journal("TessObject::GetGradient");
    const drawing::Object* object = objectOf(this);
    return object ? drawing::shapeGradientOf(*object).record : SharedResourcePtr<CGradient>();
}

void TessObject::SetGradient(SharedResourcePtr<CGradient> const& gradient) {
    journal("TessObject::SetGradient");
    changeOwn(state_, [&](drawing::Object& object) { object.setGradient(gradient); });
}

void TessObject::SetFillPattern(SharedResourcePtr<CPatRecord> const& pattern) {
    journal("TessObject::SetFillPattern");
    changeOwn(state_, [&](drawing::Object& object) { object.setFillPattern(patternKind(pattern)); });
}

void CloneItem(TessObject const* object, TessObject& clone) {
    journal("CloneItem");
    const bool there = objectOf(object) != nullptr;
    clone = there ? TessObject(std::make_shared<HostObject>(*object->State())) : TessObject();
}

void ObjToPoly(TessObject const* object, TessObject& polygon, double tolerance) {
    journal("ObjToPoly", tolerance);
    polygon = TessObject();
    const drawing::Object* source = objectOf(object);
    if (!source || !(tolerance > 0))
        return;
    drawing::Path outline = polygonOutline(source->outline, tolerance);
    if (outline.empty())
        return;
    drawing::Object flat;
    flat.kind = drawing::Kind::Polygon;
    flat.fillRule = source->fillRule;
    flat.outline = std::move(outline);
    polygon = TessObject(std::make_shared<HostObject>(HostObject{sealed(std::move(flat))}));
}

void RecoverObject(TessObject& polygon) {
    journal("RecoverObject");
    polygon = TessObject();
}
