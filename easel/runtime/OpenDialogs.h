// The dialogs that are open, the front one last.
#pragma once

#include "easel/runtime/Dialog.h"

#include <memory>
#include <vector>

namespace easel::paint {
class Port;
}

namespace easel::runtime {

class OpenDialogs {
  public:
    Dialog& add(std::unique_ptr<Dialog> dialog);
    // Takes the dialog out and destroys it.
    void remove(const Dialog& dialog);

    // The one in front of all others, or null.
    Dialog* front() { return dialogs_.empty() ? nullptr : dialogs_.back().get(); }
    // The dialog that a reference names; null for one that is not open, so that a stale reference does no
    // harm.
    Dialog* find(const OpaqueDialogPtr* ref);
    // The dialog that draws in this port, or null.
    Dialog* owning(const paint::Port& port);

    // Tells the observer of the front dialog what has been drawn. Called before the plug-in waits for the
    // mouse, since it draws while a button is held without ever returning to the loop that runs the dialog.
    void flushFront();

  private:
    std::vector<std::unique_ptr<Dialog>> dialogs_;
};

} // namespace easel::runtime
