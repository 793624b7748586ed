// Builds the message boxes.
#include "easel/window/dialogs/Messages.h"

#include "easel/runtime/Alert.h"

#include <QMessageBox>
#include <QPushButton>

namespace easel::window {

QMessageBox* makeProblemMessage(const QString& message, QWidget* parent) {
    auto* box = new QMessageBox(parent);
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(QObject::tr("Easel"));
    box->setTextFormat(Qt::PlainText);
    box->setText(message);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setStandardButtons(QMessageBox::Ok);
    return box;
}

Question makeQuestion(const runtime::Alert& alert, QWidget* parent) {
    auto box = std::make_unique<QMessageBox>(parent);
    box->setIcon(QMessageBox::Question);
    box->setWindowTitle(alert.title.empty() ? QObject::tr("Easel") : QString::fromStdString(alert.title));
    box->setTextFormat(Qt::PlainText);
    box->setText(QString::fromStdString(alert.text));
    box->setInformativeText(QString::fromStdString(alert.detail));
    const auto caption = [](const std::string& text) {
        return QString::fromStdString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
    };
    QPushButton* yes = box->addButton(caption(alert.yesButton), QMessageBox::AcceptRole);
    QPushButton* no = box->addButton(caption(alert.noButton), QMessageBox::RejectRole);
    box->setDefaultButton(yes);
    box->setEscapeButton(no);
    return {std::move(box), yes};
}

bool Question::yes() const {
    return box->clickedButton() == yesButton;
}

UnsavedQuestion makeUnsavedQuestion(const QString& drawingName, QWidget* parent) {
    auto box = std::make_unique<QMessageBox>(parent);
    box->setIcon(QMessageBox::Question);
    box->setWindowTitle(QObject::tr("Easel"));
    box->setTextFormat(Qt::PlainText);
    box->setText(QObject::tr("Save the changes to \u201c%1\u201d?").arg(drawingName));
    box->setInformativeText(QObject::tr("Without saving, the changes since the last save are lost."));
    box->setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box->setDefaultButton(QMessageBox::Save);
    return {std::move(box)};
}

UnsavedChoice UnsavedQuestion::choice() const {
    const QAbstractButton* clicked = box->clickedButton();
    if (clicked != nullptr && clicked == box->button(QMessageBox::Save))
        return UnsavedChoice::Save;
    if (clicked != nullptr && clicked == box->button(QMessageBox::Discard))
        return UnsavedChoice::Discard;
    return UnsavedChoice::Cancel;
}

} // namespace easel::window
