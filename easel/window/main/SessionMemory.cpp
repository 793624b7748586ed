// Keeps the session in the settings.
#include "easel/window/main/SessionMemory.h"

#include <QSettings>

namespace easel::window {
namespace {

const char* const kWanted = "session/reopen";
const char* const kTool = "session/tool";
const char* const kDrawings = "session/drawings";

} // namespace

bool SessionMemory::isWanted() const {
    return QSettings().value(kWanted, false).toBool();
}

void SessionMemory::setWanted(bool wanted) {
    QSettings settings;
    settings.setValue(kWanted, wanted);
    if (!wanted)
        settings.remove(kDrawings);
}

void SessionMemory::keep(const Session& session) {
    if (!isWanted())
        return;
    QSettings settings;
    settings.setValue(kTool, static_cast<qulonglong>(session.tool));
    settings.remove(kDrawings);
    settings.beginWriteArray(kDrawings);
    for (int i = 0; i < session.drawings.size(); ++i) {
        settings.setArrayIndex(i);
        settings.setValue("file", session.drawings[i].file);
        settings.setValue("geometry", session.drawings[i].geometry);
        settings.setValue("zoom", session.drawings[i].zoom);
    }
    settings.endArray();
}

std::optional<SessionMemory::Session> SessionMemory::last() const {
    if (!isWanted())
        return std::nullopt;
    QSettings settings;
    Session session;
    session.tool = static_cast<std::size_t>(settings.value(kTool, 0).toULongLong());
    const int count = settings.beginReadArray(kDrawings);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        session.drawings.append({settings.value("file").toString(), settings.value("geometry").toByteArray(),
                                 settings.value("zoom", 1).toDouble()});
    }
    settings.endArray();
    return session;
}

} // namespace easel::window
