// Keeps the unsaved changes of one window's drawing in a journal, a few seconds behind.
#pragma once

#include "easel/window/keeping/JournalWriter.h"

#include <QTimer>

#include <cstdint>

namespace easel::drawing {
class Drawing;
}

namespace easel::window {

class UnsavedKeeper : public QObject {
    Q_OBJECT

  public:
    // The writer outlives the keeper.
    explicit UnsavedKeeper(JournalWriter& writer);

    // The user's file, empty for none; absolute. What was kept under another name goes.
    void setOrigin(const std::filesystem::path& origin);
    // The drawing comes out of this journal, which stays until the drawing is saved or given up.
    void adopt(recovery::Journal journal);

    // To be called after each change, and after each save.
    void follow(const drawing::Drawing& drawing);
    // What is unsaved is not wanted any more.
    void giveUp();
    // Keeps the drawing as it is, unsaved or not, and returns when that is done; false if it cannot be.
    bool keepNow(const drawing::Drawing& drawing);

  Q_SIGNALS:
    // Said once, until keeping succeeds again.
    void failed(const QString& reason);

  private:
    void keep();
    void landed(const files::Result<>& kept);

    JournalWriter& writer_;
    JournalWriter::PlacePtr place_;
    const drawing::Drawing* drawing_ = nullptr; // lives while the timer runs
    QTimer timer_;
    std::uint64_t keptRevision_ = UINT64_MAX;
    bool mayHaveJournal_ = false;
    bool underWay_ = false;
    bool toldFailure_ = false;
};

} // namespace easel::window
