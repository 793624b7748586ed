// What a dialog's window needs of the control that stands for one of its items.
#pragma once

#include "easel/runtime/Dialog.h"

class QWidget;

namespace easel::window {

class ItemWidget {
  public:
    virtual ~ItemWidget() = default;

    virtual QWidget* widget() = 0;

    // Takes over what the model says of the item.
    virtual void modelChanged(runtime::ItemChange change) = 0;
};

} // namespace easel::window
