// The dialogs on the screen, one over the other, and waiting for the front one.
#pragma once

#include "easel/window/waiting/InputGate.h"
#include "easel/window/waiting/Waiting.h"

#include <QPointer>
#include <QRect>
#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

class QDialog;

namespace easel::window {

// What the dialogs of a call are about.
struct DialogSubject {
    QString title; // for a dialog's own title in the place of %1
    QRect area;    // on the screen, to be left in sight; empty for what is not to be seen
};

class DialogStack {
  public:
    // Both outlive the stack.
    DialogStack(Waiting& waiting, InputGate& gate) : waiting_(waiting), gate_(gate) {}

    // The window over which dialogs open when no other dialog is open.
    void setFrontWindow(QWidget* window) { frontWindow_ = window; }
    // None for dialogs about nothing in particular.
    void setSubject(std::optional<DialogSubject> subject) { subject_ = std::move(subject); }
    const std::optional<DialogSubject>& subject() const { return subject_; }
    // What a new dialog belongs to: the front dialog, else the front window.
    QWidget* parentForNext() const;

    // Shows a dialog over the front one, hears no other window meanwhile, and returns whether it was
    // accepted.
    bool run(QDialog& dialog);

    // For a dialog that stays open while something else happens: shows it over the front one,
    void push(QDialog& dialog);
    // and forgets it, before it goes away, wherever it lies in the stack.
    void remove(QDialog& dialog);
    // Gives the keyboard to the front dialog, else to the front window.
    void activateFront();

  private:
    Waiting& waiting_;
    InputGate& gate_;
    std::vector<QPointer<QWidget>> open_; // the front one last
    QPointer<QWidget> frontWindow_;
    std::optional<DialogSubject> subject_;
};

} // namespace easel::window
