// Writes the journals of all windows on a thread of its own. There is one of these.
#pragma once

#include "easel/drawing/Snapshot.h"
#include "easel/recovery/Journal.h"
#include "easel/recovery/Worker.h"

#include <QObject>

#include <filesystem>
#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace easel::window {

class JournalWriter : public QObject {
    Q_OBJECT

  public:
    // The journal of one drawing, if it has one by now. Only the writer's thread touches it.
    struct Place {
        std::filesystem::path origin;
        std::optional<recovery::Journal> journal;
    };
    using PlacePtr = std::shared_ptr<Place>;

    // Both return at once, and are carried out in the order of their calls. When the drawing is kept, or
    // could not be, `landed` is called on this thread as long as `receiver` lives.
    void keep(PlacePtr place, drawing::Snapshot drawing, QObject* receiver,
              std::function<void(const files::Result<>& kept)> landed);
    void remove(PlacePtr place);
    // Returns when all of that is done; false if the drawing given last could not be kept.
    bool finish();

  private:
    // Gradients in them are counted on this thread, so they begin and end here.
    std::list<drawing::Snapshot> underWay_;
    bool keptLast_ = true;    // the worker's
    recovery::Worker worker_; // ends before what it reads
};

} // namespace easel::window
