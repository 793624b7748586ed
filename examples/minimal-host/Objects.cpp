// host/Objects.h: picking and replacing rectangles.
#include "host/Objects.h"

#include "Drawing.h"

#include <algorithm>
#include <cstddef>

namespace {

constexpr int kBitsInWord = 32;
constexpr short kLargestKind = 255;
constexpr SelDescrimT kEveryKind{
    {0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}};

SelDescrimT& PickFilter() {
    static SelDescrimT filter = kEveryKind;
    return filter;
}

bool Admits(SelDescrimT const& filter, short kind) {
    return (filter.kinds[static_cast<std::size_t>(kind / kBitsInWord)] >> (kind % kBitsInWord) & 1U) != 0;
}

bool Holds(TRect<double> const& box, TPoint<double> const& point) {
    return point.h >= box.left && point.h <= box.right && point.v >= box.top && point.v <= box.bottom;
}

} // namespace

// The plug-in counts through this array, so it has to hold what IsGradientCapable answers true for.
std::int32_t const kGradObjIDs[] = {kRectangleKind};
std::int32_t const kNumGradObjIDs = 1;

bool IsGradientCapable(long kind) {
    return kind == kRectangleKind;
}

CPatRecord::~CPatRecord() = default;

std::uint32_t CPatRecord::HashID() const {
    std::uint32_t hash = 0;
    for (std::uint8_t const row : rows_) {
        hash = hash * 31 + row;
    }
    return hash;
}

SharedResourcePtr<CPatRecord> kBlackPat() {
    static SharedResourcePtr<CPatRecord> const black(
        new CPatRecord({0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}));
    return black;
}

short TessObject::WhatObject() const {
    return state_ ? state_->kind : short{0};
}

TRect<double> TessObject::BBox() const {
    return state_ ? state_->box : TRect<double>();
}

SharedResourcePtr<CGradient> TessObject::GetGradient() const {
    return state_ ? state_->gradient : SharedResourcePtr<CGradient>();
}

void TessObject::SetGradient(SharedResourcePtr<CGradient> const& gradient) {
    if (state_) {
        state_->gradient = gradient;
    }
}

void TessObject::SetFillPattern(SharedResourcePtr<CPatRecord> const& pattern) {
    if (state_) {
        state_->pattern = pattern;
    }
}

TessObject CTessObjList::operator[](long index) const {
    bool const there = state_ && index >= 0 && static_cast<std::size_t>(index) < state_->objects.size();
    return there ? TessObject(state_->objects[static_cast<std::size_t>(index)]) : TessObject();
}

SelDescrimT const descrimAllOff{};

void GetSelDescrim(SelDescrimT& filter) {
    filter = PickFilter();
}

void SetSelDescrim(SelDescrimT filter) {
    PickFilter() = filter;
}

void SetOneSelDescrim(short kind) {
    if (kind >= 0 && kind <= kLargestKind) {
        PickFilter().kinds[static_cast<std::size_t>(kind / kBitsInWord)] |= 1U << (kind % kBitsInWord);
    }
}

bool PickObj(DWindow* window, TPoint<double> where, long& index, CTessObjList& list) {
    std::shared_ptr<HostObjectList> const& drawing = window->State().drawing;
    auto const hit =
        std::find_if(drawing->objects.rbegin(), drawing->objects.rend(), [&](auto const& object) {
            return Admits(PickFilter(), object->kind) && Holds(object->box, where);
        });
    if (hit == drawing->objects.rend()) {
        return false;
    }
    index = drawing->objects.rend() - hit - 1;
    list = CTessObjList(drawing);
    return true;
}

void CloneItem(TessObject const* object, TessObject& clone) {
    clone = object->State() ? TessObject(std::make_shared<HostObject>(*object->State())) : TessObject();
}

void DeleteUObj(long index, CTessObjList const& list) {
    if (list[index].State() != nullptr) {
        auto& objects = list.State()->objects;
        objects.erase(objects.begin() + index);
    }
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface passes lists by value.
void InsertObj(TessObject const& object, long index, CTessObjList list) {
    if (list.State() && object.State()) {
        auto& objects = list.State()->objects;
        objects.insert(objects.begin() + index, object.State());
    }
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface passes lists by value.
void SelObject(long index, CTessObjList list) {
    if (TessObject const object = list[index]; object.State()) {
        TheWindow().selected.push_back(object.State());
    }
}

// A rectangle is a polygon already, whatever the tolerance. What the plug-in asks of it is its kind.
void ObjToPoly(TessObject const* object, TessObject& polygon, double /*tolerance*/) {
    CloneItem(object, polygon);
    if (polygon.State()) {
        polygon.State()->kind = kPolygonKind;
    }
}

void RecoverObject(TessObject& polygon) {
    polygon = TessObject();
}
