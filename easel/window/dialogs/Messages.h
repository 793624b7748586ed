// Message boxes: problems that name a file and a reason, and questions.
#pragma once

#include <QString>

#include <memory>

class QAbstractButton;
class QMessageBox;
class QWidget;

namespace easel::runtime {
struct Alert;
}

namespace easel::window {

// "FILE: reason" or a plain sentence. Neither is taken for markup. The caller shows the box; its parent owns
// it.
QMessageBox* makeProblemMessage(const QString& message, QWidget* parent);

// Return is yes, Escape is no.
struct Question {
    std::unique_ptr<QMessageBox> box;
    const QAbstractButton* yesButton;
    // Once the box is closed.
    bool yes() const;
};
Question makeQuestion(const runtime::Alert& alert, QWidget* parent);

enum class UnsavedChoice { Save, Discard, Cancel };
struct UnsavedQuestion {
    std::unique_ptr<QMessageBox> box;
    // Once the box is closed.
    UnsavedChoice choice() const;
};
UnsavedQuestion makeUnsavedQuestion(const QString& drawingName, QWidget* parent);

} // namespace easel::window
