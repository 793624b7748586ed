// Questions that the user answers with a button.
#pragma once

#include "easel/runtime/User.h"

class QString;
class QWidget;

namespace easel::window {

class DialogStack;

// Return and Escape are no, and so are the end of all waiting and the one button of a notice. The box
// belongs to `over`.
runtime::Answer ask(const runtime::Alert& alert, QWidget* over, DialogStack& dialogs);

enum class UnsavedChoice { Save, Discard, Cancel };

// What is to become of the changes to the drawing of this name. Escape, and the end of all waiting, cancel.
UnsavedChoice askAboutUnsaved(const QString& drawingName, QWidget* over, DialogStack& dialogs);

enum class WriteChoice { Write, SaveAs, Cancel };

// Whether a file is to be written nonetheless, which the button `write` stands for; without that button there
// is nothing but to save under another name. Return saves under another name, and Escape cancels.
WriteChoice askBeforeWriting(const QString& text, const QString& detail, const QString& write, QWidget* over,
                             DialogStack& dialogs);

} // namespace easel::window
