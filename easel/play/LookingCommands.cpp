// Commands that look: prints and pictures.
#include "easel/play/Command.h"
#include "easel/play/DialogPictures.h"
#include "easel/play/Pictures.h"
#include "easel/play/PlayError.h"
#include "easel/play/Prints.h"
#include "easel/play/Session.h"

#include <map>

namespace easel::play {

namespace {

Json printJournal(Session& session, Arguments&) {
    return {{"journal", session.process().journal().take()}};
}

Json printDialog(Session& session, Arguments&) {
    return {{"dialog", session.user().questions().describeFront()}};
}

using Print = Json (*)(Session&, Arguments&);

const std::map<std::string, Print>& prints() {
    static const std::map<std::string, Print> all{
        {"object", printObject},     {"stroke", printStroke},
        {"fit", printFit},           {"window", printWindow},
        {"palette", printPalette},   {"journal", printJournal},
        {"dialog", printDialog},     {"templates", printTemplates},
        {"defaults", printDefaults}, {"resourcefiles", printResourceFiles},
    };
    return all;
}

void print(Session& session, Arguments& arguments) {
    const std::string& what = arguments.text("what to print");
    const auto found = prints().find(what);
    if (found == prints().end())
        throw PlayError("there is no \"" + what + "\" to print");
    const Json answer = found->second(session, arguments);
    arguments.done();
    session.print(answer);
}

void picture(Session& session, Arguments& arguments) {
    if (arguments.takeIf("item"))
        pictureOfItem(session, arguments);
    else if (arguments.takeIf("dialog"))
        pictureOfDialog(session, arguments);
    else
        pictureOfWindow(session, arguments);
}

constexpr Command kLookingCommands[] = {
    {"print", When::Always, print},
    {"picture", When::Always, picture},
};

} // namespace

std::span<const Command> lookingCommands() {
    return kLookingCommands;
}

} // namespace easel::play
