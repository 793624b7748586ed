// Turns snapshots into bytes and bytes into journals, behind the window's back.
#include "easel/window/keeping/JournalWriter.h"

#include "easel/files/MemoryErrors.h"
#include "easel/svg/Document.h"

#include <QPointer>

#include <chrono>
#include <new>
#include <thread>
#include <utility>

namespace easel::window {
namespace {

constexpr int kMostTries = 100;
constexpr std::chrono::milliseconds kPause{100};

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
        return tl::unexpected(files::notEnoughMemoryToWrite(place.origin));
    }
}

// Waits some seconds for memory, if there is none.
template <class Work> void withMemory(const Work& work) {
    for (int tries = 0; tries < kMostTries; ++tries)
        try {
            return work();
        } catch (const std::bad_alloc&) {
            std::this_thread::sleep_for(kPause);
        }
}

} // namespace

void JournalWriter::keep(PlacePtr place, drawing::Snapshot drawing, QObject* receiver,
                         std::function<void(const files::Result<>& kept)> landed) {
    // Has its place before it is needed: even to say that there is no memory takes some.
    auto kept = std::make_shared<files::Result<>>(tl::unexpected(files::Error()));
    const auto snapshot = underWay_.insert(underWay_.end(), std::move(drawing));
    const QPointer<QObject> wanted = receiver;
    worker_.post([this, place = std::move(place), snapshot, wanted, landed = std::move(landed),
                  kept = std::move(kept)] {
        withMemory([&] { *kept = write(*place, *snapshot); });
        keptLast_ = kept->has_value();
        withMemory([&] {
            const auto land = [this, snapshot, wanted, landed, kept] {
                underWay_.erase(snapshot);
                if (wanted)
                    landed(*kept);
            };
            QMetaObject::invokeMethod(this, land, Qt::QueuedConnection);
        });
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
