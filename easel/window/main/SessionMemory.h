// What was open at the end of a run, for the next start to bring back if the user wants that.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <optional>

namespace easel::window {

class SessionMemory {
  public:
    struct OpenDrawing {
        QString file;
        QByteArray geometry; // place, size and state of its window
        double zoom = 1;
    };
    struct Session {
        QList<OpenDrawing> drawings;
        std::size_t tool = 0;
    };

    // Off until the user says otherwise.
    bool isWanted() const;
    void setWanted(bool wanted);

    // Nothing is kept, or given back, while it is not wanted.
    void keep(const Session& session);
    std::optional<Session> last() const;
};

} // namespace easel::window
