// The entries of the gradient menu and what they do.
#include "easel/window/main/GradientMenu.h"

#include "easel/runtime/CurrentGradient.h"
#include "easel/runtime/ToolPalette.h"
#include "easel/window/dialogs/ColorPicker.h"
#include "easel/window/dialogs/GradientQuestions.h"
#include "easel/window/main/SharedParts.h"
#include "easel/window/main/TemplateMenu.h"

#include <QCursor>

#include <algorithm>
#include <optional>

namespace easel::window {
namespace {

using drawing::Drawing;
using drawing::GradientCommand;
using drawing::GradientFrame;
using drawing::Object;
using drawing::PaintStep;
using drawing::WholeGradient;

// Of more selected objects than this the menu does not look at each before it opens.
constexpr std::size_t kMostLookedAt = 1000;
constexpr double kQuarter = 90;

constexpr auto kControlShift = Qt::CTRL | Qt::SHIFT;

// A command that asks for nothing of the object.
template <class Command> GradientCommand plain(Command command) {
    return [command](const WholeGradient& gradient, const GradientFrame&) { return command(gradient); };
}

WholeGradient turnedByQuarter(const WholeGradient& gradient, const GradientFrame& frame) {
    return rotated(gradient, kQuarter, frame.outline.bounds());
}

} // namespace

GradientMenu::GradientMenu(SharedParts& shared, runtime::DrawingWindow& window, QWidget* parent)
    : QMenu(tr("Gradien&t"), parent), shared_(shared), window_(window) {
    const Condition canTakeOne = [this] { return canTake(); };
    const Condition hasOne = [this] { return hasGradient(); };
    const Condition hasDirection = [this] { return hasLinear(); };
    const Condition canPaste = [this] { return shared_.copiedGradient && canTake(); };
    const Condition canApply = [this] { return shared_.tools.tools().size() > 1 && canTake(); };
    addPartChoice();
    addSeparator();
    add(tr("&Copy Gradient"), kControlShift | Qt::Key_C, hasOne, &GradientMenu::copy);
    add(tr("&Paste Gradient"), kControlShift | Qt::Key_V, canPaste, &GradientMenu::paste);
    addAction(tr("Pick &Up Gradient"), QKeySequence(kControlShift | Qt::Key_I), this,
              &GradientMenu::pickUpWanted);
    addSeparator();
    addCommand(tr("&Reverse"), kControlShift | Qt::Key_R, drawing::reversed);
    addCommand(tr("Rotate by &90\u00b0"), kControlShift | Qt::Key_T, turnedByQuarter);
    add(tr("&Angle\u2026"), kControlShift | Qt::Key_A, hasDirection, &GradientMenu::setAngle);
    addCommand(tr("Space Stops &Evenly"), kControlShift | Qt::Key_E, plain(drawing::withEvenStops));
    addSeparator();
    add(tr("&Opacity\u2026"), kControlShift | Qt::Key_O, hasOne, &GradientMenu::scaleOpacity);
    addCommand(tr("Ma&ke Opaque"), kControlShift | Qt::Key_F, plain(drawing::madeOpaque));
    addCommand(tr("&Make Circular"), kControlShift | Qt::Key_L, plain(drawing::madeCircular));
    addSeparator();
    addTemplates();
    add(tr("Apply Current &Gradient"), kControlShift | Qt::Key_G, canApply, &GradientMenu::applyCurrent);
    addSeparator();
    add(tr("Re&move Gradient"), kControlShift | Qt::Key_Delete, hasOne, &GradientMenu::removeGradients);
    add(tr("P&lain Color\u2026"), kControlShift | Qt::Key_K, canTakeOne, &GradientMenu::fillPlain);
    connect(this, &QMenu::aboutToShow, this, &GradientMenu::showWhatIsPossible);
    // Shortcuts go by the enabled entries too, and the selection may change while the menu is closed.
    connect(this, &QMenu::aboutToHide, this, &GradientMenu::followSelection);
}

QAction* GradientMenu::add(const QString& text, const QKeySequence& keys, Condition enabled,
                           void (GradientMenu::*slot)()) {
    QAction* action = addAction(text, keys, this, slot);
    entries_.emplace_back(action, std::move(enabled));
    return action;
}

void GradientMenu::addCommand(const QString& text, const QKeySequence& keys, const GradientCommand& command) {
    QAction* action = addAction(text, keys, this, [this, command] { run(command); });
    entries_.emplace_back(action, [this, command] { return wouldChange(window_.drawing(), part_, command); });
}

void GradientMenu::addTemplates() {
    auto* templates = new TemplateMenu(tr("Apply &Template"), shared_.templateFolder, this);
    connect(templates, &TemplateMenu::chosen, this, [this](const CGradientData& gradient) {
        give({gradient, {}});
    });
    QAction* action = addMenu(templates);
    action->setShortcut(kControlShift | Qt::Key_P);
    // The keys open it where the user looks; in the menu it opens by itself.
    connect(action, &QAction::triggered, templates, [templates] { templates->popup(QCursor::pos()); });
    entries_.emplace_back(action, [this] { return canTake(); });
}

void GradientMenu::addPartChoice() {
    QAction* action = addAction(tr("&Stroke Instead of Fill"));
    action->setShortcut(kControlShift | Qt::Key_D);
    action->setCheckable(true);
    connect(action, &QAction::toggled, this, [this](bool stroke) {
        part_ = stroke ? PaintStep::Stroke : PaintStep::Fill;
        Q_EMIT partChosen();
    });
}

void GradientMenu::followSelection() {
    // What each entry would do is looked at when the menu opens; by its keys it may also do nothing.
    for (const auto& [action, condition] : entries_)
        action->setEnabled(window_.drawing().hasSelection());
}

void GradientMenu::showWhatIsPossible() {
    if (window_.drawing().selection().size() > kMostLookedAt)
        return;
    for (const auto& [action, condition] : entries_)
        action->setEnabled(condition());
}

bool GradientMenu::canTake() const {
    return canTakeGradient(window_.drawing(), part_);
}

std::optional<WholeGradient> GradientMenu::selectedGradient() const {
    const Drawing& drawing = window_.drawing();
    const std::vector<std::size_t> selection = drawing.selection();
    for (auto index = selection.rbegin(); index != selection.rend(); ++index)
        if (auto gradient = wholeGradientOf(*drawing.object(*index), part_))
            return gradient;
    return std::nullopt;
}

bool GradientMenu::hasGradient() const {
    return selectedGradient().has_value();
}

bool GradientMenu::hasLinear() const {
    const std::vector<std::size_t> selection = window_.drawing().selection();
    return std::any_of(selection.begin(), selection.end(), [&](std::size_t index) {
        const auto gradient = wholeGradientOf(*window_.drawing().object(index), part_);
        return gradient && gradient->record.Type() == kLinearGradient;
    });
}

void GradientMenu::run(const GradientCommand& command) {
    Q_EMIT aboutToEdit();
    changeSelected(window_.drawing(), part_, command);
    Q_EMIT edited();
}

void GradientMenu::paint(const std::function<void(Object& object)>& change) {
    changeSelectedObjects(window_.drawing(), part_, change);
    Q_EMIT replaced();
}

void GradientMenu::give(const WholeGradient& gradient) {
    paint([&](Object& object) { putGradient(object, gradient, part_); });
}

void GradientMenu::copy() {
    if (auto gradient = selectedGradient())
        shared_.copiedGradient = std::move(gradient);
}

void GradientMenu::paste() {
    if (shared_.copiedGradient)
        give(*shared_.copiedGradient);
}

void GradientMenu::setAngle() {
    const auto shown = selectedGradient();
    if (!hasLinear())
        return;
    const double start = drawing::principalAngle(static_cast<double>(shown->record.Angle()));
    if (const auto angle = askForAngle(start, shared_.interaction.dialogs))
        run([angle](const WholeGradient& gradient, const GradientFrame&) {
            return withAngle(gradient, *angle);
        });
}

void GradientMenu::scaleOpacity() {
    Drawing& drawing = window_.drawing();
    if (!hasGradient())
        return;
    Q_EMIT aboutToEdit();
    bool shown = false;
    const auto show = [&](double factor) {
        if (shown)
            drawing.takeBack();
        shown = changeSelected(drawing, part_, [factor](const WholeGradient& gradient, const GradientFrame&) {
            return opacityScaled(gradient, factor);
        });
        Q_EMIT edited();
    };
    if (!askForOpacity(show, shared_.interaction.dialogs) && shown)
        drawing.takeBack();
    Q_EMIT edited();
}

void GradientMenu::applyCurrent() {
    const std::vector<PaletteTool>& tools = shared_.tools.tools();
    const auto tool = std::find_if(tools.begin(), tools.end(),
                                   [](const PaletteTool& candidate) { return candidate.plugin != nullptr; });
    if (tool == tools.end() || !canTake())
        return;
    if (const auto current = runtime::currentGradientOf(tool->plugin->tool(), shared_.process))
        give({*current, {}});
}

void GradientMenu::removeGradients() {
    paint([this](Object& object) { removeGradient(object, part_); });
}

void GradientMenu::fillPlain() {
    if (!canTake())
        return;
    if (const auto color = askForColor(tr("Plain color"), {}, shared_.interaction.dialogs))
        paint([&](Object& object) { putPlainColor(object, {color->red, color->green, color->blue}, part_); });
}

} // namespace easel::window
