// Carries out what the user says of the drawings.
#include "easel/window/keeping/OfferRecovery.h"

#include "easel/files/AtomicFile.h"
#include "easel/files/Trash.h"
#include "easel/files/WholeFile.h"
#include "easel/window/keeping/RecoveryDialog.h"
#include "easel/window/waiting/DialogStack.h"
#include "easel/window/waiting/TellProblem.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include <utility>

namespace easel::window {
namespace {

using recovery::Journal;

// Whether the drawing has found a place under the user's files. Without an error it is that the user
// cancelled.
files::Result<bool> saveAs(const Journal& journal, DialogStack& dialogs) {
    const QString origin = journal.origin().empty() ? QObject::tr("Untitled") + QLatin1String(".svg")
                                                    : QFile::decodeName(journal.origin().c_str());
    QFileDialog dialog(dialogs.parentForNext(), QObject::tr("Save As"), QFileInfo(origin).path(),
                       QObject::tr("SVG drawings (*.svg *.svgz);;All files (*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QFileInfo(origin).suffix());
    dialog.selectFile(QFileInfo(origin).fileName());
    if (!dialogs.run(dialog))
        return false;
    const std::filesystem::path file = QFile::encodeName(dialog.selectedFiles().value(0)).toStdString();
    return files::readWholeFile(journal.drawing())
        .and_then([&](const files::Bytes& bytes) { return files::replaceFile(file, bytes); })
        .map([] { return true; });
}

// Whether there is nothing more to be said of the journal.
bool carryOut(RecoveryDialog::Choice choice, Journal& journal, DialogStack& dialogs,
              const std::function<bool(Journal& journal)>& open) {
    if (choice == RecoveryDialog::Choice::Open)
        return open(journal);
    files::Result<bool> settled = false;
    if (choice == RecoveryDialog::Choice::SaveAs)
        settled = saveAs(journal, dialogs);
    else if (choice == RecoveryDialog::Choice::ThrowAway)
        settled = files::Trash(files::Trash::desktopHome()).move(journal.drawing()).map([] { return true; });
    if (!settled)
        tellProblem(settled.error(), dialogs);
    if (!settled || !*settled)
        return false;
    journal.remove();
    return true;
}

bool holdsTheSame(const Journal& journal) {
    const auto kept = files::readWholeFile(journal.drawing());
    const auto saved = files::readWholeFile(journal.origin());
    return kept && saved && *kept == *saved;
}

} // namespace

void offerRecovery(std::vector<Journal> journals, DialogStack& dialogs,
                   const std::function<bool(Journal& journal)>& open) {
    while (!journals.empty()) {
        RecoveryDialog dialog(journals, dialogs.parentForNext());
        if (!dialogs.run(dialog))
            return;
        const std::vector<std::size_t> chosen = dialog.chosen();
        std::vector<Journal> left;
        for (std::size_t i = 0; i < journals.size(); ++i) {
            const bool isMeant = std::find(chosen.begin(), chosen.end(), i) != chosen.end();
            if (!isMeant || !carryOut(dialog.choice(), journals[i], dialogs, open))
                left.push_back(std::move(journals[i]));
        }
        journals.swap(left);
    }
}

std::vector<Journal> journalsToOffer() {
    std::vector<Journal> found;
    for (Journal& journal : Journal::abandonedIn(recovery::journalFolder())) {
        if (holdsTheSame(journal))
            journal.remove();
        else
            found.push_back(std::move(journal));
    }
    return found;
}

} // namespace easel::window
