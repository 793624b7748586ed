// The answer is kept in the settings.
#include "easel/window/main/StarterOffer.h"

#include "easel/exchange/StarterTemplates.h"
#include "easel/window/main/NoticeBar.h"
#include "easel/window/main/SharedParts.h"
#include "easel/window/waiting/TellProblem.h"

#include <QSettings>

namespace easel::window {
namespace {

constexpr const char* kAnsweredKey = "starterTemplatesAnswered";

void addThem(NoticeBar& notice, SharedParts& shared) {
    const exchange::TemplateShelf shelf(shared.templateFolder, {});
    const auto added = exchange::addStarterTemplates(shelf, exchange::starterTemplates());
    if (!added) {
        tellProblem(added.error(), shared.interaction.dialogs);
        return;
    }
    notice.tell(QObject::tr("%n templates were added. The gradient editor lists them in its popup, and "
                            "Edit > Gradient > Apply Template gives them to shapes.",
                            nullptr, static_cast<int>(added->size())));
}

} // namespace

bool offerStarterTemplates(NoticeBar& notice, SharedParts& shared) {
    // The user may save one meanwhile, or answer another window.
    const auto needsAnswer = [folder = shared.templateFolder] {
        return !QSettings().value(kAnsweredKey).toBool() &&
               exchange::TemplateShelf(folder, {}).names().empty();
    };
    if (shared.templateFolder.empty() || !needsAnswer())
        return false;
    const auto answered = [] { QSettings().setValue(kAnsweredKey, true); };
    notice.ask(
        QObject::tr("You have no gradient templates yet. Would you like a dozen to begin with, such as a "
                    "sky, gold and wood?"),
        {{QObject::tr("&Add Starter Templates"),
          [answered, &notice, &shared] {
              answered();
              addThem(notice, shared);
          }},
         {QObject::tr("No &Thanks"), answered}},
        needsAnswer);
    return true;
}

} // namespace easel::window
