// Lays out the notice and its button.
#include "easel/window/main/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace easel::window {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent), label_(new QLabel), buttons_(new QHBoxLayout), done_(new QPushButton(tr("Got it"))) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Midlight);
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    done_->setToolTip(tr("Put this notice away"));
    connect(done_, &QPushButton::clicked, this, &QWidget::hide);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 6, 10, 6);
    layout->setSpacing(12);
    layout->addWidget(label_, 1);
    layout->addLayout(buttons_);
    layout->addWidget(done_);
    hide();
}

void NoticeBar::tell(const QString& text, const std::vector<Action>& actions) {
    label_->setText(text);
    while (QLayoutItem* item = buttons_->takeAt(0)) {
        // The button may be the one whose click leads here.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    for (const Action& action : actions) {
        auto* button = new QPushButton(action.text);
        connect(button, &QPushButton::clicked, this, [this, act = action.act] {
            hide();
            act();
        });
        buttons_->addWidget(button);
    }
    done_->show();
    setVisible(!text.isEmpty());
}

void NoticeBar::ask(const QString& question, const std::vector<Action>& answers) {
    tell(question, answers);
    done_->hide();
}

} // namespace easel::window
