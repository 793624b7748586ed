// Listens to the kernel's notices and looks at the file when they have settled.
#include "easel/window/keeping/FileOnDisk.h"

#include "easel/files/WholeFile.h"

#include <QSocketNotifier>

#include <algorithm>
#include <chrono>

namespace easel::window {
namespace {

// Whoever writes a file does it in several steps.
constexpr std::chrono::milliseconds kSettling{250};

std::filesystem::path folderOf(const std::filesystem::path& file) {
    return file.has_parent_path() ? file.parent_path() : std::filesystem::path(".");
}

} // namespace

FileOnDisk::FileOnDisk() {
    settled_.setSingleShot(true);
    settled_.setInterval(kSettling);
    connect(&settled_, &QTimer::timeout, this, &FileOnDisk::look);
}

FileOnDisk::~FileOnDisk() = default;

void FileOnDisk::follow(files::KnownFile known) {
    const bool isAnother = known.file() != known_.file();
    known_ = std::move(known);
    settled_.stop();
    state_ = stateFor(files::KnownFile::Fate::Same);
    if (!isAnother)
        return;
    folderNotices_.reset();
    userNotices_.reset();
    use_.reset();
    toldShared_ = false;
    if (known_.file().empty())
        return;
    watchFolder();
    // Without a place to say so, nobody is told; the file opens all the same.
    if (auto use = recovery::FileUse::begin(recovery::useFolder(), known_.file()))
        use_.emplace(*std::move(use));
    watchUsers();
    usersChanged();
}

void FileOnDisk::accept() {
    files::KnownFile now(known_.file());
    if (const auto content = files::readWholeFile(now.file()))
        now.setContent(files::charactersOf(*content));
    follow(std::move(now));
    // A file that is gone stays so until it is written again.
    lookInto();
}

void FileOnDisk::tellAgain() {
    state_ = State::Same;
    look();
}

FileOnDisk::State FileOnDisk::stateFor(files::KnownFile::Fate fate) const {
    if (fate == files::KnownFile::Fate::Gone)
        return State::Gone;
    if (fate == files::KnownFile::Fate::Changed)
        return State::Changed;
    return files::isWriteProtected(known_.file()) ? State::Protected : State::Same;
}

FileOnDisk::State FileOnDisk::lookInto() {
    return state_ = stateFor(known_.lookInto());
}

void FileOnDisk::look() {
    const State now = stateFor(known_.look());
    if (now == state_)
        return;
    state_ = now;
    Q_EMIT stateChanged(now);
}

void FileOnDisk::watchFolder() {
    folder_.start(folderOf(known_.file()));
    folderNotices_.reset();
    if (folder_.descriptor() < 0)
        return;
    folderNotices_ = std::make_unique<QSocketNotifier>(folder_.descriptor(), QSocketNotifier::Read);
    connect(folderNotices_.get(), &QSocketNotifier::activated, this, [this] {
        const auto changes = folder_.changes();
        const std::string name = known_.file().filename().string();
        if (!changes || std::find(changes->begin(), changes->end(), name) != changes->end())
            settled_.start();
        // The notifier cannot go away in the middle of its own signal.
        if (!changes)
            QMetaObject::invokeMethod(this, &FileOnDisk::watchFolder, Qt::QueuedConnection);
    });
}

void FileOnDisk::watchUsers() {
    users_.start(recovery::useFolder());
    if (users_.descriptor() < 0)
        return;
    userNotices_ = std::make_unique<QSocketNotifier>(users_.descriptor(), QSocketNotifier::Read);
    connect(userNotices_.get(), &QSocketNotifier::activated, this, [this] {
        if (users_.changes())
            usersChanged();
        else
            userNotices_->setEnabled(false);
    });
}

void FileOnDisk::usersChanged() {
    const bool isShared = use_ && use_->isShared();
    if (isShared && !toldShared_)
        QMetaObject::invokeMethod(this, &FileOnDisk::shared, Qt::QueuedConnection);
    toldShared_ = isShared;
}

} // namespace easel::window
