// Shows dialogs and waits for their end.
#include "easel/window/waiting/DialogStack.h"

#include "easel/window/waiting/FitToScreen.h"

#include <QDialog>

namespace easel::window {

QWidget* DialogStack::parentForNext() const {
    return open_.empty() ? frontWindow_.data() : open_.back().data();
}

bool DialogStack::run(QDialog& dialog) {
    const Waiting::Call call(waiting_);
    const InputGate::Scope scope(gate_, &dialog);
    bool finished = false;
    const auto watching =
        QObject::connect(&dialog, &QDialog::finished, &dialog, [&finished] { finished = true; });
    push(dialog);
    waiting_.sleepUntil([&finished] { return finished; });
    QObject::disconnect(watching);
    const bool accepted = finished && dialog.result() == QDialog::Accepted;
    dialog.hide();
    open_.pop_back();
    if (!open_.empty() && open_.back())
        open_.back()->activateWindow();
    return accepted;
}

void DialogStack::push(QDialog& dialog) {
    open_.emplace_back(&dialog);
    fitToScreen(dialog);
    dialog.show();
    dialog.activateWindow();
}

void DialogStack::remove(QDialog& dialog) {
    std::erase(open_, &dialog);
}

void DialogStack::activateFront() {
    if (QWidget* front = parentForNext())
        front->activateWindow();
}

} // namespace easel::window
