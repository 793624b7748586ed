// Builds the message boxes and reads the answers off them.
#include "easel/window/dialogs/Questions.h"

#include "easel/runtime/Alert.h"
#include "easel/window/waiting/CoreTexts.h"
#include "easel/window/waiting/DialogStack.h"

#include <QMessageBox>
#include <QPushButton>

namespace easel::window {
namespace {

constexpr std::size_t kMostNamed = 8;

// The question, and a line for each thing that it is about.
QString questionOf(const runtime::Alert& alert) {
    if (alert.refusal)
        return inUsersLanguage(*alert.refusal, alert.text);
    QStringList lines{QString::fromStdString(alert.text)};
    if (!alert.about.empty())
        lines << QString();
    const std::size_t named = alert.about.size() > kMostNamed + 1 ? kMostNamed : alert.about.size();
    for (std::size_t i = 0; i < named; ++i)
        lines << QObject::tr("\u201c%1\u201d").arg(QString::fromStdString(alert.about[i]));
    if (named < alert.about.size())
        lines << QObject::tr("and %n more", nullptr, static_cast<int>(alert.about.size() - named));
    return lines.join(QLatin1Char('\n'));
}

} // namespace

runtime::Answer ask(const runtime::Alert& alert, QWidget* over, DialogStack& dialogs) {
    QMessageBox box(over);
    box.setIcon(alert.refusal ? QMessageBox::Warning : QMessageBox::Question);
    box.setWindowTitle(alert.title.empty() ? QObject::tr("Easel") : QString::fromStdString(alert.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(questionOf(alert));
    box.setInformativeText(QString::fromStdString(alert.detail));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    const auto caption = [](const std::string& text) {
        return QString::fromStdString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
    };
    QPushButton* yes =
        alert.refusal ? nullptr : box.addButton(caption(alert.yesButton), QMessageBox::AcceptRole);
    QPushButton* no = box.addButton(caption(alert.noButton), QMessageBox::RejectRole);
    // What is asked about cannot always be undone.
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    dialogs.run(box);
    return yes && box.clickedButton() == yes ? runtime::Answer::Yes : runtime::Answer::No;
}

UnsavedChoice askAboutUnsaved(const QString& drawingName, QWidget* over, DialogStack& dialogs) {
    QMessageBox box(over);
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(QObject::tr("Easel"));
    box.setTextFormat(Qt::PlainText);
    box.setText(QObject::tr("Save the changes to \u201c%1\u201d?").arg(drawingName));
    box.setInformativeText(QObject::tr("Without saving, the changes since the last save are lost."));
    box.setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    box.setDefaultButton(QMessageBox::Save);
    dialogs.run(box);
    const QAbstractButton* clicked = box.clickedButton();
    if (clicked && clicked == box.button(QMessageBox::Save))
        return UnsavedChoice::Save;
    if (clicked && clicked == box.button(QMessageBox::Discard))
        return UnsavedChoice::Discard;
    return UnsavedChoice::Cancel;
}

WriteChoice askBeforeWriting(const QString& text, const QString& detail, const QString& write, QWidget* over,
                             DialogStack& dialogs) {
    QMessageBox box(over);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QObject::tr("Easel"));
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(detail);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const QPushButton* writes =
        write.isEmpty() ? nullptr : box.addButton(write, QMessageBox::DestructiveRole);
    QPushButton* saves = box.addButton(QObject::tr("Save &As\u2026"), QMessageBox::AcceptRole);
    box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(saves);
    dialogs.run(box);
    const QAbstractButton* clicked = box.clickedButton();
    if (clicked && clicked == writes)
        return WriteChoice::Write;
    return clicked && clicked == saves ? WriteChoice::SaveAs : WriteChoice::Cancel;
}

} // namespace easel::window
