// A line of text that takes the room there is.
#pragma once

#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace easel::window {

// Does not ask for the room of its text: where that is missing, the text ends in dots.
class ElidedLabel : public QLabel {
  public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        style()->drawItemText(
            &painter, contentsRect(),
            static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment())), palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()), foregroundRole());
    }
};

} // namespace easel::window
