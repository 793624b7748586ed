// Commands on the gradients of all selected shapes.
#pragma once

#include "easel/drawing/SelectedGradients.h"
#include "easel/runtime/DrawingWindow.h"

#include <QKeySequence>
#include <QMenu>

#include <functional>
#include <utility>
#include <vector>

namespace easel::window {

struct SharedParts;

class GradientMenu : public QMenu {
    Q_OBJECT

  public:
    // Both outlive the menu.
    GradientMenu(SharedParts& shared, runtime::DrawingWindow& window, QWidget* parent);

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

  private:
    using Condition = std::function<bool(const drawing::Drawing& drawing)>;

    QAction* add(const QString& text, const QKeySequence& keys, Condition enabled,
                 void (GradientMenu::*slot)());
    void addCommand(const QString& text, const QKeySequence& keys, const drawing::GradientCommand& command);
    void addTemplates();
    void showWhatIsPossible();

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
    std::vector<std::pair<QAction*, Condition>> entries_;
};

} // namespace easel::window
