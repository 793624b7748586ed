// A line above the canvas that tells something about the drawing until it is put away.
#pragma once

#include <QFrame>

#include <functional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace easel::window {

class NoticeBar : public QFrame {
    Q_OBJECT

  public:
    // What can be done about a notice, besides putting it away.
    struct Action {
        QString text;
        std::function<void()> act;
    };

    explicit NoticeBar(QWidget* parent = nullptr);

    // Plain text; an empty one hides the bar. Each action has a button, which puts the notice away.
    void tell(const QString& text, const std::vector<Action>& actions = {});
    // The same for a question, which only its answers put away.
    void ask(const QString& question, const std::vector<Action>& answers);

  private:
    QLabel* label_;
    QHBoxLayout* buttons_;
    QPushButton* done_;
};

} // namespace easel::window
