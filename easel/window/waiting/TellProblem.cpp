// Shows a message box.
#include "easel/window/waiting/TellProblem.h"

#include "easel/window/waiting/DialogStack.h"

#include <QMessageBox>

namespace easel::window {

void tellProblem(const std::string& message, DialogStack& dialogs) {
    QMessageBox box(dialogs.parentForNext());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QObject::tr("Easel"));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(message));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.setStandardButtons(QMessageBox::Ok);
    dialogs.run(box);
}

} // namespace easel::window
