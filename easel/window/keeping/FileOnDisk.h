// Follows the file of a drawing while it is open: what others do to it, and who else has it open.
#pragma once

#include "easel/files/FolderWatch.h"
#include "easel/files/KnownFile.h"
#include "easel/recovery/FileUse.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <memory>
#include <optional>

class QSocketNotifier;

namespace easel::window {

class FileOnDisk : public QObject {
    Q_OBJECT

  public:
    enum class State : std::uint8_t { Same, Changed, Gone, Protected };

    FileOnDisk();
    ~FileOnDisk() override;

    // From now on this file, which holds what its user knows of it.
    void follow(files::KnownFile known);
    // Tells the state again, whatever was told before.
    void tellAgain();
    // What is there now is known, and counts as the same until somebody changes it again.
    void accept();

    const files::KnownFile& known() const { return known_; }
    // Reads the file again, to the last byte.
    State lookInto();

  Q_SIGNALS:
    // Another state than the one told before.
    void stateChanged(easel::window::FileOnDisk::State state);
    // Somebody else has opened the file, or had it open before.
    void shared();

  private:
    void watchFolder();
    void watchUsers();
    void usersChanged();
    void look();
    State stateFor(files::KnownFile::Fate fate) const;

    files::KnownFile known_;
    files::FolderWatch folder_;
    files::FolderWatch users_;
    std::unique_ptr<QSocketNotifier> folderNotices_;
    std::unique_ptr<QSocketNotifier> userNotices_;
    std::optional<recovery::FileUse> use_;
    QTimer settled_;
    State state_ = State::Same;
    bool toldShared_ = false;
};

} // namespace easel::window
