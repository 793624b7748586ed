// A click of the tool on a drawing.
#include "Gradient/tool/CanvasClick.h"

#include "Gradient/editor/EditorSession.h"
#include "Gradient/tool/DragTracking.h"
#include "Gradient/tool/Globals.h"
#include "Gradient/tool/ObjectGradient.h"
#include "host/Drawing.h"
#include "host/Gradient.h"
#include "host/Mouse.h"
#include "host/Windows.h"

namespace {

constexpr long kUndoKind = 3;

/// Lets picks return only kinds that can carry a gradient, for a scope.
class StGradientKindsOnly {
  public:
    StGradientKindsOnly() {
        GetSelDescrim(mSaved);
        SetSelDescrim(descrimAllOff);
        for (std::int32_t index = 0; index < kNumGradObjIDs; ++index) {
            SetOneSelDescrim(static_cast<short>(kGradObjIDs[index]));
        }
    }
    StGradientKindsOnly(StGradientKindsOnly const&) = delete;
    StGradientKindsOnly& operator=(StGradientKindsOnly const&) = delete;
    ~StGradientKindsOnly() { SetSelDescrim(mSaved); }

  private:
    SelDescrimT mSaved;
};

bool PickAndOperate(DWindow* window, TPoint<double> const& where) {
    StGradientKindsOnly const filter;
    CTessObjList list;
    long index = 0;
    if (!PickObj(window, where, index, list)) {
        return false;
    }
    // A kind is 16 bits without a sign.
    auto const kind = static_cast<unsigned short>(list[index].WhatObject());
    if (!IsGradientCapable(kind)) {
        return false;
    }
    HandleGradientOperation(list, index, window, where);
    return true;
}

} // namespace

bool GradientTool(DWindow* window, EventRecord const& /*event*/, TPoint<double> const& where) {
    StGrafPortSaver const port;
    QD::SetPort(window->GetMacPort());
    // Both come before the pick: a click that hits nothing deselects and prepares undo too.
    window->UnselectAll();
    window->SetUndo(kUndoKind);
    bool const handled = PickAndOperate(window, where);
    if (!handled) {
        SysBeep(1);
    }
    return handled;
}

// The host's own calls take the list by value, and so does this one.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void HandleGradientOperation(CTessObjList list, long index, DWindow* window, TPoint<double> const& where) {
    TessObject const picked = list[index];
    TessObject replacement;
    CloneItem(&picked, replacement);

    bool replace = true;
    if (NorvU::KeyIsDown(NorvU::kOptionKey)) {
        replace = EditObjectGradient(&replacement);
    } else if (!TrackGradientObjFlow(where, &replacement)) {
        PutGradient(replacement, gCurrentGradient);
    }
    if (!replace) {
        return;
    }
    DeleteUObj(index, list);
    InsertObj(replacement, index, list);
    SelObject(index, list);
    window->InvalSelection();
}

bool EditObjectGradient(TessObject* object) {
    CGradientData edited;
    if (SharedResourcePtr<CGradient> const gradient = object->GetGradient(); gradient != nullptr) {
        edited = gradient->GetGradientData();
    } else {
        edited = gCurrentGradient;
    }
    if (!ModalEditGradient(edited)) {
        return false;
    }
    PutGradient(*object, edited);
    return true;
}
