// Lays out the notice and its button.
#include "easel/window/main/NoticeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace easel::window {

NoticeBar::NoticeBar(QWidget* parent) : QFrame(parent), label_(new QLabel) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Midlight);
    label_->setTextFormat(Qt::PlainText);
    label_->setWordWrap(true);
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* done = new QPushButton(tr("Got it"));
    done->setToolTip(tr("Put this notice away"));
    connect(done, &QPushButton::clicked, this, &QWidget::hide);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(14, 6, 10, 6);
    layout->setSpacing(12);
    layout->addWidget(label_, 1);
    layout->addWidget(done);
    hide();
}

void NoticeBar::tell(const QString& text) {
    label_->setText(text);
    setVisible(!text.isEmpty());
}

} // namespace easel::window
