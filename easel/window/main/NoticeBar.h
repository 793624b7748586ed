// A line above the canvas that tells something about the drawing until it is put away.
#pragma once

#include <QFrame>

class QLabel;

namespace easel::window {

class NoticeBar : public QFrame {
    Q_OBJECT

  public:
    explicit NoticeBar(QWidget* parent = nullptr);

    // Plain text; an empty one hides the bar.
    void tell(const QString& text);

  private:
    QLabel* label_;
};

} // namespace easel::window
