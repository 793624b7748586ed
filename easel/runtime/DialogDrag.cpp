// Takes back what a drag in a dialog did to a gradient, when the user breaks the drag off.
#include "easel/runtime/DialogDrag.h"

#include "easel/runtime/Dialog.h"

#include <utility>

namespace easel::runtime {

namespace {

// Before every stop that a ramp has.
constexpr double kBeforeAllStops = -1;
// Below every item of a dialog.
constexpr int kFarBelow = 10000;

} // namespace

void DialogDrag::begin() {
    *this = DialogDrag();
    phase_ = Phase::Pressed;
    start_.isNext = end_.isNext = true;
}

void DialogDrag::followed(const Dialog& dialog) {
    if (phase_ == Phase::None)
        return;
    if (phase_ == Phase::Pressed) {
        phase_ = Phase::Followed;
        for (const DialogItem& item : dialog.items())
            if (item.kind == ItemKind::EditText)
                fields_.push_back(item);
    }
    if (stepsLeft_ > 0)
        --stepsLeft_;
    position_.isNext = start_.isNext = end_.isNext = true;
}

void DialogDrag::finish(Dialog& dialog) {
    if (phase_ == Phase::Back) {
        for (const DialogItem& field : fields_) {
            if (madeStop_)
                break;
            dialog.setText(field.number, field.text);
            dialog.selectText(field.number, field.selection);
        }
        for (const DialogItem& item : dialog.items())
            if (item.kind == ItemKind::UserDrawn)
                dialog.invalidate(item.number);
    }
    *this = DialogDrag();
}

std::vector<paint::PixelPoint> DialogDrag::takeBack() {
    phase_ = Phase::Back;
    // A stop that came with the press is pulled off again. Any other comes back to the ramp if it was pulled
    // off, goes to the front of all stops and from there to its place: of several stops in one place a press
    // takes the first.
    std::vector<paint::PixelPoint> steps{{0, -1}, {0, 0}, {0, -1}};
    if (madeStop_)
        steps = {{0, kFarBelow}};
    stepsLeft_ = steps.size();
    return steps;
}

template <class Value> Value DialogDrag::followed(Dragged<Value>& dragged, Value before, Value wanted) const {
    if (phase_ == Phase::None || !std::exchange(dragged.isNext, false))
        return wanted;
    if (!dragged.before)
        dragged.before = before;
    return phase_ == Phase::Back ? *dragged.before : wanted;
}

double DialogDrag::positionFor(double before, double wanted) {
    const bool isNext = position_.isNext;
    const double value = followed(position_, before, wanted);
    return phase_ == Phase::Back && isNext && stepsLeft_ > 0 ? kBeforeAllStops : value;
}

TPoint<double> DialogDrag::startFor(TPoint<double> before, TPoint<double> wanted) {
    return followed(start_, before, wanted);
}

TPoint<double> DialogDrag::endFor(TPoint<double> before, TPoint<double> wanted) {
    return followed(end_, before, wanted);
}

void DialogDrag::stopMade() {
    madeStop_ = madeStop_ || phase_ == Phase::Pressed;
}

} // namespace easel::runtime
