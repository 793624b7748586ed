// A field for a number with decimals, in which a point is always a decimal sign.
#pragma once

#include "easel/window/dialogs/LocalNumbers.h"

#include <QDoubleSpinBox>

namespace easel::window {

// Shows the number in the user's way. Whoever types or pastes a point means the decimal sign, also where that
// is a comma: on many keyboards it is what the number pad has.
class NumberField : public QDoubleSpinBox {
  public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QValidator::State validate(QString& text, int& position) const override {
        text = inUsersDigits(text);
        return QDoubleSpinBox::validate(text, position);
    }
};

} // namespace easel::window
