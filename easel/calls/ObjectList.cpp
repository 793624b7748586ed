// Picking objects, the pick filter, and changes of a drawing's list of objects.
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/HostObject.h"
#include "easel/runtime/HostPoint.h"
#include "easel/runtime/HostWindow.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/PickFilter.h"

#include <algorithm>
#include <optional>

namespace drawing = easel::drawing;
using easel::runtime::journal;
using easel::runtime::theHost;

namespace {

// How far from an outline a click still means the object, in screen pixels.
constexpr double kReach = 3;

// Null for a list of no drawing.
drawing::Drawing* drawingOf(CTessObjList const& list) {
    return list.State() ? &list.State()->window->drawing() : nullptr;
}

// Null if the list has no object at the index.
drawing::Drawing* drawingWith(CTessObjList const& list, long index) {
    drawing::Drawing* own = drawingOf(list);
    return own && index >= 0 && static_cast<std::size_t>(index) < own->size() ? own : nullptr;
}

} // namespace

TessObject CTessObjList::operator[](long index) const {
    const drawing::Drawing* own = drawingWith(*this, index);
    if (!own)
        return {};
    return TessObject(std::make_shared<HostObject>(HostObject{own->object(static_cast<std::size_t>(index))}));
}

SelDescrimT const descrimAllOff{};

void GetSelDescrim(SelDescrimT& filter) {
    journal("GetSelDescrim");
    filter = theHost().pickFilter;
}

void SetSelDescrim(SelDescrimT filter) {
    journal("SetSelDescrim");
    theHost().pickFilter = filter;
}

void SetOneSelDescrim(short kind) {
    journal("SetOneSelDescrim", kind);
    easel::runtime::admit(theHost().pickFilter, kind);
}

bool PickObj(DWindow* window, TPoint<double> where, long& index, CTessObjList& list) {
    journal("PickObj");
    if (!window)
        return false;
    easel::runtime::DrawingWindow& own = *window->State().window;
    const drawing::KindSet kinds = easel::runtime::kindsIn(theHost().pickFilter);
    const auto found = own.drawing().pick(easel::runtime::toPoint(where), kReach / own.view().zoom, kinds);
    if (!found)
        return false;
    index = static_cast<long>(*found);
    list = CTessObjList(std::make_shared<HostObjectList>(HostObjectList{&own}));
    return true;
}

void DeleteUObj(long index, CTessObjList const& list) {
    journal("DeleteUObj", index);
    if (drawing::Drawing* own = drawingWith(list, index))
        own->erase(static_cast<std::size_t>(index));
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface passes lists by value.
void InsertObj(TessObject const& object, long index, CTessObjList list) {
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
