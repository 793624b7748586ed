// Moves the content of a dialog into an area that scrolls.
#include "easel/window/waiting/FitToScreen.h"

#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace easel::window {
namespace {

void letScroll(QDialog& dialog) {
    QWidget* const typed = dialog.focusWidget();
    auto* content = new QWidget;
    content->setLayout(dialog.layout());
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(content);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    dialog.setMinimumSize(0, 0);
    dialog.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (typed)
        typed->setFocus();
}

} // namespace

void fitToScreen(QDialog& dialog) {
    const QSize room = dialog.screen()->availableSize() - kWindowFrame;
    const bool isFixed = dialog.layout() && dialog.layout()->sizeConstraint() == QLayout::SetFixedSize;
    QSize wanted = isFixed ? dialog.sizeHint() : dialog.size();
    if (wanted.boundedTo(room) == wanted)
        return;
    if (isFixed) {
        letScroll(dialog);
        // A bar for the one direction is not to make one for the other necessary.
        const int bar = dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
        wanted += QSize(bar, bar);
    }
    dialog.resize(wanted.boundedTo(room));
}

} // namespace easel::window
