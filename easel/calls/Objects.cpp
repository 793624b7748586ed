// Implements host/Objects.h.
#include "host/Objects.h"

#include "easel/drawing/ShapeGradient.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/FieldHash.h"
#include "easel/runtime/FillPatterns.h"
#include "easel/runtime/HostObject.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/HostWindow.h"
#include "easel/runtime/PickFilter.h"
#include "easel/runtime/PolygonOutline.h"
#include "easel/runtime/Process.h"

#include <algorithm>
#include <utility>

namespace drawing = easel::drawing;
using easel::runtime::journal;
using easel::runtime::process;

namespace {

// How far from an outline a click still means the object, in screen pixels.
constexpr double kReach = 3;

const drawing::Object* objectOf(const TessObject* object) {
    return object && object->State() ? object->State()->object.get() : nullptr;
}

// Lets a function change an object: not the one it shares with others, but one of its own.
template <class Change> void changeOwn(const std::shared_ptr<HostObject>& state, Change change) {
    if (!state)
        return;
    drawing::Object own = *state->object;
    change(own);
    state->object = drawing::makeShared<const drawing::Object>(std::move(own));
}

// Null for a list of no drawing.
drawing::Drawing* drawingOf(const CTessObjList& list) {
    return list.State() ? &list.State()->window->drawing() : nullptr;
}

// Null if the list has no object at the index.
drawing::Drawing* drawingWith(const CTessObjList& list, long index) {
    drawing::Drawing* own = drawingOf(list);
    return own && index >= 0 && static_cast<std::size_t>(index) < own->size() ? own : nullptr;
}

} // namespace

CPatRecord::~CPatRecord() = default;

std::uint32_t CPatRecord::HashID() const {
    return easel::runtime::hashOf(rows_);
}

SharedResourcePtr<CPatRecord> kBlackPat() {
    journal("kBlackPat");
    return easel::runtime::blackPattern();
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

void TessObject::SetGradient(const SharedResourcePtr<CGradient>& gradient) {
    journal("TessObject::SetGradient");
    changeOwn(state_, [&](drawing::Object& object) { object.setGradient(gradient); });
}

void TessObject::SetFillPattern(const SharedResourcePtr<CPatRecord>& pattern) {
    journal("TessObject::SetFillPattern");
    changeOwn(state_, [&](drawing::Object& object) {
        object.setFillPattern(easel::runtime::fillPatternOf(pattern));
    });
}

void CloneItem(const TessObject* object, TessObject& clone) {
    journal("CloneItem");
    const bool there = objectOf(object) != nullptr;
    clone = there ? TessObject(std::make_shared<HostObject>(*object->State())) : TessObject();
}

void ObjToPoly(const TessObject* object, TessObject& polygon, double tolerance) {
    journal("ObjToPoly", tolerance);
    polygon = TessObject();
    const drawing::Object* source = objectOf(object);
    if (!source || !(tolerance > 0))
        return;
    drawing::Path outline = easel::runtime::polygonOutline(source->outline, tolerance);
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

TessObject CTessObjList::operator[](long index) const {
    const drawing::Drawing* own = drawingWith(*this, index);
    if (!own)
        return {};
    return TessObject(std::make_shared<HostObject>(HostObject{own->object(static_cast<std::size_t>(index))}));
}

const SelDescrimT descrimAllOff{};

void GetSelDescrim(SelDescrimT& filter) {
    journal("GetSelDescrim");
    filter = process().pickFilter();
}

void SetSelDescrim(SelDescrimT filter) {
    journal("SetSelDescrim");
    process().pickFilter() = filter;
}

void SetOneSelDescrim(short kind) {
    journal("SetOneSelDescrim", kind);
    easel::runtime::admit(process().pickFilter(), kind);
}

bool PickObj(DWindow* window, TPoint<double> where, long& index, CTessObjList& list) {
    journal("PickObj");
    if (!window)
        return false;
    easel::runtime::DrawingWindow& own = *window->State().window;
    const drawing::KindSet kinds = easel::runtime::kindsIn(process().pickFilter());
    const auto found = own.drawing().pick(easel::runtime::toPoint(where), kReach / own.view().zoom, kinds);
    if (!found)
        return false;
    index = static_cast<long>(*found);
    list = CTessObjList(std::make_shared<HostObjectList>(HostObjectList{&own}));
    return true;
}

void DeleteUObj(long index, const CTessObjList& list) {
    journal("DeleteUObj", index);
    if (drawing::Drawing* own = drawingWith(list, index))
        own->erase(static_cast<std::size_t>(index));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface passes lists by value.
void InsertObj(const TessObject& object, long index, CTessObjList list) {
    journal("InsertObj", index);
    drawing::Drawing* own = drawingOf(list);
    if (!own || !object.State())
        return;
    const std::size_t place = std::min(static_cast<std::size_t>(std::max(index, 0L)), own->size());
    own->insert(place, object.State()->object);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface passes lists by value.
void SelObject(long index, CTessObjList list) {
    journal("SelObject", index);
    if (drawing::Drawing* own = drawingWith(list, index))
        own->select(static_cast<std::size_t>(index));
}
