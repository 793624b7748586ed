// Turns snapshots into bytes and bytes into journals, behind the window's back.
#include "easel/window/keeping/JournalWriter.h"

#include "easel/svg/Document.h"

#include <QPointer>

#include <new>
#include <utility>

namespace easel::window {
namespace {

files::Result<> write(JournalWriter::Place& place, const drawing::Snapshot& drawing) {
    try {
        const std::string bytes = svg::toBytes(drawing);
        if (!place.journal) {
            auto begun = recovery::Journal::begin(recovery::journalFolder(), place.origin);
            if (!begun)
                return tl::unexpected(begun.error());
            place.journal.emplace(*std::move(begun));
        }
        return place.journal->keep(bytes);
    } catch (const std::bad_alloc&) {
        return tl::unexpected(files::Error{place.origin, "there is not enough memory to write it",
                                           std::make_error_code(std::errc::not_enough_memory)});
    }
}

} // namespace

void JournalWriter::keep(PlacePtr place, drawing::Snapshot drawing, QObject* receiver,
                         std::function<void(const files::Result<>& kept)> landed) {
    const auto snapshot = underWay_.insert(underWay_.end(), std::move(drawing));
    const QPointer<QObject> wanted = receiver;
    worker_.post([this, place = std::move(place), snapshot, wanted, landed = std::move(landed)] {
        const files::Result<> kept = write(*place, *snapshot);
        keptLast_ = kept.has_value();
        const auto land = [this, snapshot, wanted, landed, kept] {
            underWay_.erase(snapshot);
            if (wanted)
                landed(kept);
        };
        QMetaObject::invokeMethod(this, land, Qt::QueuedConnection);
    });
}

bool JournalWriter::finish() {
    worker_.finish();
    return keptLast_;
}

void JournalWriter::remove(PlacePtr place) {
    worker_.post([place = std::move(place)] {
        if (place->journal)
            place->journal->remove();
        place->journal.reset();
    });
}

} // namespace easel::window
