// Shows a message box.
#include "easel/window/waiting/TellProblem.h"

#include "easel/window/waiting/CoreTexts.h"
#include "easel/window/waiting/DialogStack.h"

#include <QMessageBox>

namespace easel::window {

void tellProblem(const files::Error& error, DialogStack& dialogs) {
    tellProblem(inUsersLanguage(error), dialogs);
}

void tellProblem(const QString& message, DialogStack& dialogs) {
    QMessageBox box(dialogs.parentForNext());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QObject::tr("Easel"));
    box.setTextFormat(Qt::PlainText);
    box.setText(message);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setStandardButtons(QMessageBox::Ok);
    dialogs.run(box);
}

} // namespace easel::window
