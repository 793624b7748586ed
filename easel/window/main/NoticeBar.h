// A line above the canvas that tells something about the drawing until it is put away.
#pragma once

#include <QFrame>

#include <functional>
#include <optional>
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

    // Plain text; an empty one puts the notice away. Each action has a button, which puts the notice away.
    void tell(const QString& text, const std::vector<Action>& actions = {});
    // The same for a question, which only its answers put away. What is told meanwhile waits for them, the
    // last of it, and a question waits until a notice is put away. It is put away unanswered once it need not
    // be asked any more, which is looked at whenever the user comes to the window.
    void ask(const QString& question, const std::vector<Action>& answers,
             const std::function<bool()>& needsAnswer);

  protected:
    bool event(QEvent* event) override;

  private:
    struct Notice {
        QString text;
        std::vector<Action> actions;
        std::function<bool()> needsAnswer; // of a question

        bool isQuestion() const { return needsAnswer != nullptr; }
        bool isOver() const { return needsAnswer && !needsAnswer(); }
    };

    void show(Notice notice);
    void showButtons();
    void putAway();
    void act(const std::function<void()>& action);

    std::optional<Notice> shown_;
    std::optional<Notice> waiting_; // a notice behind a question, or a question behind a notice
    QLabel* label_;
    QHBoxLayout* buttons_;
    QPushButton* done_;
};

} // namespace easel::window
