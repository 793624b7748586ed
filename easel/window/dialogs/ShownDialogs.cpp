// Opens and closes a window for each dialog.
#include "easel/window/dialogs/ShownDialogs.h"

#include "easel/window/dialogs/DialogWindow.h"
#include "easel/window/waiting/Interaction.h"

namespace easel::window {

// A key that is pressed while the plug-in follows the mouse is one for the dialog, once the mouse is up.
struct ShownDialogs::Shown {
    Shown(runtime::Dialog& dialog, Interaction& interaction)
        : window(dialog, interaction.pointer, interaction.dialogs.parentForNext()),
          keys(interaction.gate, &window, InputGate::Hears::Keys) {}

    DialogWindow window;
    InputGate::Scope keys;
};

ShownDialogs::ShownDialogs(Interaction& interaction) : interaction_(interaction) {}

ShownDialogs::~ShownDialogs() = default;

void ShownDialogs::show(runtime::Dialog& dialog) {
    auto& shown = shown_[&dialog];
    shown = std::make_unique<Shown>(dialog, interaction_);
    interaction_.dialogs.push(shown->window);
}

void ShownDialogs::close(const runtime::Dialog& dialog) {
    const auto found = shown_.find(&dialog);
    if (found == shown_.end())
        return;
    interaction_.dialogs.remove(found->second->window);
    shown_.erase(found);
    interaction_.dialogs.activateFront();
}

std::int16_t ShownDialogs::nextHit(runtime::Dialog& dialog) {
    const auto found = shown_.find(&dialog);
    if (found == shown_.end())
        return 0;
    DialogWindow& window = found->second->window;
    const InputGate::Scope scope(interaction_.gate, &window);
    window.programIs(DialogWindow::Program::Waiting);
    interaction_.waiting.sleepUntil([&dialog] { return dialog.hasHit(); });
    window.programIs(DialogWindow::Program::Busy);
    if (interaction_.waiting.cancelled())
        return 0;
    return static_cast<std::int16_t>(dialog.takeHit().value_or(0));
}

} // namespace easel::window
