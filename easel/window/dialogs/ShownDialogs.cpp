// Opens and closes a window for each dialog.
#include "easel/window/dialogs/ShownDialogs.h"

#include "easel/runtime/TextQuestion.h"
#include "easel/window/dialogs/DialogWindow.h"
#include "easel/window/waiting/Interaction.h"
#include "easel/window/waiting/TellProblem.h"

#include <QScreen>

#include <algorithm>
#include <optional>

namespace easel::window {

namespace {

constexpr int kGap = 16;
constexpr int kTitleBar = 32; // about as high as a window manager makes it

// Where a window of this size has its corner to leave the area in sight; nothing if there is no such place.
std::optional<QPoint> besides(const QRect& area, const QSize& size, const QRect& screen) {
    const int top = std::clamp(area.center().y() - size.height() / 2, screen.top() + kTitleBar,
                               std::max(screen.top() + kTitleBar, screen.bottom() - size.height()));
    if (area.right() + kGap + size.width() <= screen.right())
        return QPoint(area.right() + kGap, top);
    if (area.left() - kGap - size.width() >= screen.left())
        return QPoint(area.left() - kGap - size.width(), top);
    return std::nullopt;
}

void putBeside(QWidget& window, const DialogSubject& subject) {
    if (window.windowTitle().isEmpty())
        return;
    window.setWindowTitle(subject.title.arg(window.windowTitle()));
    const auto place = subject.area.isEmpty()
                           ? std::nullopt
                           : besides(subject.area, window.sizeHint(), window.screen()->availableGeometry());
    if (place)
        window.move(*place - QPoint(0, kTitleBar));
}

} // namespace

// A key that is pressed while the plug-in follows the mouse is one for the dialog, once the mouse is up.
struct ShownDialogs::Shown {
    Shown(runtime::Dialog& dialog, Interaction& interaction, const EntryPicture& picture)
        : window(dialog, interaction.pointer, picture, interaction.dialogs.parentForNext()),
          keys(interaction.gate, &window, InputGate::Hears::Keys) {}

    DialogWindow window;
    InputGate::Scope keys;
};

ShownDialogs::ShownDialogs(Interaction& interaction, EntryPicture picture)
    : interaction_(interaction), picture_(std::move(picture)) {}

ShownDialogs::~ShownDialogs() = default;

void ShownDialogs::show(runtime::Dialog& dialog) {
    const bool isFirst = shown_.empty();
    auto& shown = shown_[&dialog];
    shown = std::make_unique<Shown>(dialog, interaction_, picture_);
    if (isFirst && interaction_.dialogs.subject())
        putBeside(shown->window, *interaction_.dialogs.subject());
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
    for (;;) {
        const std::int16_t hit = nextHit(dialog, *found->second);
        const runtime::DialogItem* empty = hit == kDefaultItem ? emptyAnswer(dialog) : nullptr;
        if (!empty)
            return hit;
        askForText(dialog, *empty);
    }
}

std::int16_t ShownDialogs::nextHit(runtime::Dialog& dialog, Shown& shown) {
    DialogWindow& window = shown.window;
    const InputGate::Scope scope(interaction_.gate, &window);
    window.programIs(DialogWindow::Program::Waiting);
    interaction_.waiting.sleepUntil([&dialog] { return dialog.hasHit(); });
    window.programIs(DialogWindow::Program::Busy);
    if (interaction_.waiting.cancelled())
        return 0;
    return static_cast<std::int16_t>(dialog.takeHit().value_or(0));
}

// The program that runs the dialog would take an empty text for a Cancel, and say nothing.
void ShownDialogs::askForText(runtime::Dialog& dialog, const runtime::DialogItem& field) {
    const QString name = QString::fromStdString(field.accessibleName);
    const QString text = name.isEmpty() ? QObject::tr("The field is empty.")
                                        : QObject::tr("\u201c%1\u201d is empty.").arg(name);
    tellProblem(QObject::tr("%1 Type something, or choose Cancel.").arg(text), interaction_.dialogs);
    dialog.setFocus(field.number);
}

} // namespace easel::window
