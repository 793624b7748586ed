// Waits a little after a change, so that a run of changes is kept once.
#include "easel/window/keeping/UnsavedKeeper.h"

#include "easel/drawing/Drawing.h"
#include "easel/files/MemoryErrors.h"
#include "easel/window/waiting/CoreTexts.h"

#include <chrono>
#include <new>
#include <utility>

namespace easel::window {
namespace {

// What is lost at the most is what happens in this time and while a journal is written.
constexpr std::chrono::seconds kDelay{2};

} // namespace

UnsavedKeeper::UnsavedKeeper(JournalWriter& writer)
    : writer_(writer), place_(std::make_shared<JournalWriter::Place>()) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &UnsavedKeeper::keep);
}

void UnsavedKeeper::setOrigin(const std::filesystem::path& origin) {
    giveUp();
    place_ = std::make_shared<JournalWriter::Place>(JournalWriter::Place{origin, std::nullopt});
}

void UnsavedKeeper::adopt(recovery::Journal journal) {
    giveUp();
    const std::filesystem::path origin = journal.origin();
    place_ = std::make_shared<JournalWriter::Place>(JournalWriter::Place{origin, std::move(journal)});
    mayHaveJournal_ = true;
}

void UnsavedKeeper::follow(const drawing::Drawing& drawing) {
    drawing_ = &drawing;
    if (!drawing.dirty())
        giveUp();
    else if (drawing.revision() != keptRevision_ && !timer_.isActive() && !underWay_)
        timer_.start(kDelay);
}

void UnsavedKeeper::giveUp() {
    timer_.stop();
    keptRevision_ = UINT64_MAX;
    if (std::exchange(mayHaveJournal_, false))
        writer_.remove(place_);
}

bool UnsavedKeeper::keepNow(const drawing::Drawing& drawing) {
    drawing_ = &drawing;
    timer_.stop();
    keep();
    return writer_.finish();
}

void UnsavedKeeper::keep() {
    try {
        writer_.keep(place_, drawing_->snapshot(), this,
                     [this](const files::Result<>& kept) { landed(kept); });
    } catch (const std::bad_alloc&) {
        return landed(tl::unexpected(files::notEnoughMemoryToWrite(place_->origin)));
    }
    underWay_ = true;
    mayHaveJournal_ = true;
    keptRevision_ = drawing_->revision();
}

void UnsavedKeeper::landed(const files::Result<>& kept) {
    underWay_ = false;
    if (!kept) {
        keptRevision_ = UINT64_MAX;
        if (!std::exchange(toldFailure_, true))
            Q_EMIT failed(inUsersLanguage(kept.error()));
        // Tried again with the next change, not before: the reason may last.
        return;
    }
    toldFailure_ = false;
    if (drawing_)
        follow(*drawing_);
}

} // namespace easel::window
