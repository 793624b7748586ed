// Commands on the gradients of all selected shapes, or on those of their strokes.
#pragma once

#include "easel/drawing/SelectedGradients.h"
#include "easel/runtime/DrawingWindow.h"

#include <QKeySequence>
#include <QMenu>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace easel::window {

struct SharedParts;

class GradientMenu : public QMenu {
    Q_OBJECT

  public:
    // Both outlive the menu.
    GradientMenu(SharedParts& shared, runtime::DrawingWindow& window, QWidget* parent);

    // What the commands work on.
    drawing::PaintStep part() const { return part_; }

    // The selection changed: lets those entries be chosen that may have something to do.
    void followSelection();

  Q_SIGNALS:
    // A command is about to change gradients, and has, if there was anything to change.
    void aboutToEdit();
    void edited();
    // Shapes have got other fills.
    void replaced();
    // The next click on a shape is to copy its gradient.
    void pickUpWanted();
    // The commands work on something else from now on.
    void partChosen();

  private:
    using Condition = std::function<bool()>;

    QAction* add(const QString& text, const QKeySequence& keys, Condition enabled,
                 void (GradientMenu::*slot)());
    void addCommand(const QString& text, const QKeySequence& keys, const drawing::GradientCommand& command);
    void addTemplates();
    void addPartChoice();
    void showWhatIsPossible();

    bool canTake() const;
    bool hasGradient() const;
    bool hasLinear() const;
    // That of the front-most selected object that has one.
    std::optional<drawing::WholeGradient> selectedGradient() const;

    void run(const drawing::GradientCommand& command);
    void give(const drawing::WholeGradient& gradient);
    void paint(const std::function<void(drawing::Object& object)>& change);

    void copy();
    void paste();
    void setAngle();
    void scaleOpacity();
    void applyCurrent();
    void removeGradients();
    void fillPlain();

    SharedParts& shared_;
    runtime::DrawingWindow& window_;
    drawing::PaintStep part_ = drawing::PaintStep::Fill;
    std::vector<std::pair<QAction*, Condition>> entries_;
};

} // namespace easel::window
