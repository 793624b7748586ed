// What the window says and does about the gradients of its shapes.
#include "easel/drawing/StrokeGradient.h"
#include "easel/window/canvas/Canvas.h"
#include "easel/window/canvas/ToolKeys.h"
#include "easel/window/main/GradientMenu.h"
#include "easel/window/main/MainWindow.h"
#include "easel/window/main/NoticeBar.h"
#include "easel/window/main/SharedParts.h"

#include <QLabel>
#include <QStatusBar>

#include <utility>

namespace easel::window {
namespace {

using drawing::Drawing;
using drawing::Loss;
using drawing::WholeGradient;

// Of more selected objects than this only some are looked at for a message.
constexpr std::size_t kMostAskedForMessage = 200;

struct Kept {
    bool opacity = false;
    bool ellipse = false;

    void add(const WholeGradient& gradient) {
        opacity = opacity || !gradient.remainder.opacity.empty();
        ellipse = ellipse || (gradient.remainder.ellipse && gradient.record.Type() != kLinearGradient);
    }
};

// Empty if nothing is kept.
QString textOf(Kept kept) {
    if (kept.opacity && kept.ellipse)
        return QObject::tr("Opacity and ellipse stay as they are");
    if (kept.opacity)
        return QObject::tr("Opacity stays as it is");
    return kept.ellipse ? QObject::tr("The ellipse stays as it is") : QString();
}

QString textOf(Loss loss) {
    switch (loss) {
    case Loss::None:
        break;
    case Loss::Focus:
        return QObject::tr("The focus of this gradient was not inside its circle. With this change it has "
                           "moved there, so that the gradient looks a little different.");
    case Loss::Repeats:
        return QObject::tr("This gradient repeated more often than can be edited. With this change its "
                           "colors run only once.");
    case Loss::Extent:
        return QObject::tr("This gradient had no extent, so that only its last color showed. With this "
                           "change that color is all that is left of it.");
    }
    return {};
}

Loss lossOf(const drawing::Object& object, drawing::PaintStep part) {
    return part == drawing::PaintStep::Stroke ? strokeGradientOf(object).loss : shapeGradientOf(object).loss;
}

std::optional<drawing::Point> centreOf(const std::optional<WholeGradient>& gradient,
                                       const drawing::Box& box) {
    if (!gradient || gradient->record.Type() == kLinearGradient)
        return std::nullopt;
    const TPoint<double> end = gradient->record.End();
    return drawing::Point{box.left + end.h * box.width(), box.top + end.v * box.height()};
}

} // namespace

void MainWindow::buildGradientMenu(QMenu& edit) {
    gradientMenu_ = new GradientMenu(shared_, drawingWindow_, this);
    edit.addMenu(gradientMenu_);
    connect(gradientMenu_, &GradientMenu::aboutToEdit, this, &MainWindow::rememberCost);
    connect(gradientMenu_, &GradientMenu::edited, this, &MainWindow::gradientsEdited);
    connect(gradientMenu_, &GradientMenu::replaced, this, &MainWindow::drawingChanged);
    connect(gradientMenu_, &GradientMenu::pickUpWanted, this, [this] {
        canvas_->pickUpNext();
        statusBar()->showMessage(tr("Click on a shape to copy its gradient; Escape lets it be"),
                                 kMessageTime);
    });
    connect(gradientMenu_, &GradientMenu::partChosen, this, [this] {
        const bool strokes = gradientMenu_->part() == drawing::PaintStep::Stroke;
        statusBar()->showMessage(strokes ? tr("The gradient commands work on strokes")
                                         : tr("The gradient commands work on fills"),
                                 kMessageTime);
    });
    connect(canvas_, &Canvas::toolPressed, this, &MainWindow::gradientPressed);
    connect(canvas_, &Canvas::toolReleased, this, &MainWindow::gradientReleased);
    connect(canvas_, &Canvas::pickedUp, this, &MainWindow::gradientPickedUp);
}

void MainWindow::gradientPressed(drawing::Point at) {
    const Drawing& drawing = drawingWindow_.drawing();
    pressed_ = Pressed{std::nullopt, drawing.undoLevels(), runtime::TemplateSaves(shared_.templateFolder)};
    cost_ = Loss::None;
    const auto hit = drawing.pick(at, kToolReach / canvas_->zoom(), gradientKinds());
    if (!hit)
        return;
    const drawing::Object& object = *drawing.object(*hit);
    const QString id = QString::fromStdString(object.id.text());
    shared_.interaction.dialogs.setSubject(DialogSubject{
        id.isEmpty() ? tr("%1 of the Shape") : tr("%1 of \u201c%2\u201d").arg(QStringLiteral("%1"), id),
        canvas_->onScreen(object.bounds)});
    pressed_->gradient = wholeGradientOf(object);
    cost_ = shapeGradientOf(object).loss;
    if (!pressed_->gradient)
        return;
    Kept kept;
    kept.add(*pressed_->gradient);
    if (const QString text = textOf(kept); !text.isEmpty())
        message_->setText(text);
}

void MainWindow::gradientReleased() {
    shared_.interaction.dialogs.setSubject({});
    const std::optional<Pressed> before = std::exchange(pressed_, std::nullopt);
    const Loss cost = std::exchange(cost_, Loss::None);
    if (before && before->gradient && before->templates.any())
        tellWhatStaysBehind(*before->gradient);
    const Drawing& drawing = drawingWindow_.drawing();
    const std::vector<std::size_t> selection = drawing.selection();
    if (!before || drawing.undoLevels() <= before->undoLevels || selection.size() != 1)
        return;
    const drawing::Object& object = *drawing.object(selection.front());
    const auto now = wholeGradientOf(object);
    if (!before->gradient || !now || same(*before->gradient, *now))
        return;
    tellCost(cost);
    const auto centre = centreOf(now, object.bounds);
    if (!centre || !centreOf(before->gradient, object.bounds))
        return;
    Kept kept;
    kept.add(*now);
    const QString where = tr("The center is at %1 now").arg(coordinatesText(*centre, canvas_->zoom()));
    const QString rest = textOf(kept);
    statusBar()->showMessage(rest.isEmpty() ? where : QStringLiteral("%1 \u2014 %2").arg(where, rest),
                             kMessageTime);
}

void MainWindow::gradientPickedUp(drawing::Point at) {
    const Drawing& drawing = drawingWindow_.drawing();
    const drawing::PaintStep part = gradientMenu_->part();
    const bool stroke = part == drawing::PaintStep::Stroke;
    const auto hit =
        drawing.pick(at, kToolReach / canvas_->zoom(), stroke ? drawing::KindSet::all() : gradientKinds());
    if (auto gradient = hit ? wholeGradientOf(*drawing.object(*hit), part) : std::nullopt) {
        shared_.copiedGradient = std::move(gradient);
        statusBar()->showMessage(tr("The gradient is copied"), kMessageTime);
        return;
    }
    canvas_->flash();
    statusBar()->showMessage(tr("There is no gradient here to copy"), kMessageTime);
}

void MainWindow::rememberCost() {
    levelsBefore_ = drawingWindow_.drawing().undoLevels();
    cost_ = Loss::None;
    for (const drawing::ObjectPtr& object : drawingWindow_.drawing().someSelected(kMostAskedForMessage))
        if (const Loss loss = lossOf(*object, gradientMenu_->part()); loss != Loss::None)
            cost_ = loss;
}

void MainWindow::gradientsEdited() {
    if (drawingWindow_.drawing().undoLevels() > levelsBefore_)
        tellCost(cost_);
    drawingChanged();
}

void MainWindow::tellWhatStaysBehind(const WholeGradient& gradient) {
    Kept kept;
    kept.add(gradient);
    if (kept.opacity && kept.ellipse)
        notice_->tell(tr("A template has opaque colors and circles: the opacity and the ellipse of this "
                         "gradient stay behind, with the shape."));
    else if (kept.opacity)
        notice_->tell(tr("A template has opaque colors: the opacity of this gradient stays behind, with the "
                         "shape."));
    else if (kept.ellipse)
        notice_->tell(tr("A template has circles: the ellipse of this gradient stays behind, with the "
                         "shape."));
}

void MainWindow::tellCost(Loss loss) {
    if (loss != Loss::None && toldCosts_.insert(loss).second)
        notice_->tell(textOf(loss));
}

void MainWindow::showWhatIsKept() {
    Kept kept;
    for (const drawing::ObjectPtr& object : drawingWindow_.drawing().someSelected(kMostAskedForMessage))
        if (const auto gradient = wholeGradientOf(*object))
            kept.add(*gradient);
    const QString text = textOf(kept);
    message_->setText(text.isEmpty() ? toolMessage_ : text);
}

} // namespace easel::window
