// The stack of open dialogs.
#include "easel/runtime/OpenDialogs.h"

#include <algorithm>
#include <utility>

namespace easel::runtime {

Dialog& OpenDialogs::add(std::unique_ptr<Dialog> dialog) {
    dialogs_.push_back(std::move(dialog));
    return *dialogs_.back();
}

void OpenDialogs::remove(const Dialog& dialog) {
    std::erase_if(dialogs_, [&dialog](const auto& each) { return each.get() == &dialog; });
}

Dialog* OpenDialogs::find(const OpaqueDialogPtr* ref) {
    const auto found = std::find_if(dialogs_.begin(), dialogs_.end(),
                                    [ref](const auto& each) { return each->ref() == ref; });
    return found == dialogs_.end() ? nullptr : found->get();
}

Dialog* OpenDialogs::owning(const paint::Port& port) {
    const auto found = std::find_if(dialogs_.begin(), dialogs_.end(),
                                    [&port](const auto& each) { return &each->port() == &port; });
    return found == dialogs_.end() ? nullptr : found->get();
}

void OpenDialogs::flushFront() {
    if (Dialog* dialog = front())
        dialog->flush();
}

} // namespace easel::runtime
