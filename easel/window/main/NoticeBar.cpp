// Lays out the notice and its button.
#include "easel/window/main/NoticeBar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace easel::window {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent), label_(new QLabel), buttons_(new QHBoxLayout), done_(new QPushButton(tr("&Got it"))) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Midlight);
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    done_->setToolTip(tr("Put this notice away"));
    connect(done_, &QPushButton::clicked, this, &NoticeBar::putAway);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 6, 10, 6);
    layout->setSpacing(12);
    layout->addWidget(label_, 1);
    layout->addLayout(buttons_);
    layout->addWidget(done_);
    hide();
}

void NoticeBar::tell(const QString& text, const std::vector<Action>& actions) {
    const bool isAsking = shown_ && shown_->isQuestion();
    if (isAsking && text.isEmpty())
        waiting_.reset();
    else if (isAsking)
        waiting_ = Notice{text, actions, {}};
    else if (text.isEmpty())
        putAway();
    else
        show({text, actions, {}});
}

void NoticeBar::ask(const QString& question, const std::vector<Action>& answers,
                    const std::function<bool()>& needsAnswer) {
    Notice notice{question, answers, needsAnswer};
    if (shown_)
        waiting_ = std::move(notice);
    else
        show(std::move(notice));
}

bool NoticeBar::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && shown_ && shown_->isOver())
        putAway();
    return QFrame::event(event);
}

void NoticeBar::show(Notice notice) {
    shown_ = std::move(notice);
    label_->setText(shown_->text);
    showButtons();
    setVisible(true);
}

void NoticeBar::showButtons() {
    while (QLayoutItem* item = buttons_->takeAt(0)) {
        // The button may be the one whose click leads here.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    for (const Action& action : shown_->actions) {
        auto* button = new QPushButton(action.text);
        connect(button, &QPushButton::clicked, this, [this, chosen = action.act] { act(chosen); });
        buttons_->addWidget(button);
    }
    done_->setVisible(!shown_->isQuestion());
}

void NoticeBar::putAway() {
    shown_.reset();
    hide();
    if (auto next = std::exchange(waiting_, std::nullopt); next && !next->isOver())
        show(*std::move(next));
}

// What the action tells comes before what waits.
void NoticeBar::act(const std::function<void()>& action) {
    shown_.reset();
    hide();
    action();
    if (!shown_)
        putAway();
}

} // namespace easel::window
