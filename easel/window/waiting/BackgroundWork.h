// Long work beside a window that stays alive.
#pragma once

#include "easel/export/Progress.h"

#include <functional>
#include <memory>

class QProgressDialog;
class QString;
class QWidget;

namespace easel::window {

struct Interaction;

// A window that shows how far something is and lets the user cancel it. It appears only when the work takes
// longer than half a second.
std::unique_ptr<QProgressDialog> makeProgressDialog(const QString& text, QWidget* over);
// `done` is 0 to 1. Once the user has cancelled, nothing is shown any more.
void showProgress(QProgressDialog& dialog, double done);

// Runs the work on a thread of its own and returns when it is done, or throws what it threw. Meanwhile the
// user hears of its progress and can cancel it, and can do nothing else; so the work may read what only the
// user changes.
void runInBackground(Interaction& interaction, const QString& text, QWidget* over,
                     const std::function<void(const exports::Progress& progress)>& work);

} // namespace easel::window
