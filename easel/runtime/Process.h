// What the host keeps while a plug-in can call it: who is asked, what is in front, and everything that was
// handed out.
#pragma once

#include "easel/runtime/DialogDrag.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/MemoryBlocks.h"
#include "easel/runtime/OpenDialogs.h"
#include "easel/runtime/PluginResourceFile.h"
#include "easel/runtime/PolygonRecording.h"
#include "easel/runtime/Ports.h"
#include "easel/runtime/Snap.h"
#include "easel/runtime/Storage.h"
#include "easel/runtime/ToolPalette.h"
#include "host/Objects.h"

#include <utility>

namespace easel::runtime {

class DeletionList;
class DrawingWindow;
class User;

// There is one at a time, made by whoever runs the plug-in before its module is loaded and destroyed after it
// is unloaded. Used on the user-interface thread only.
class Process {
  public:
    // Throws std::logic_error if there is one already.
    explicit Process(const classic::StoragePlaces& places);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    // Throws std::logic_error while nobody is there (see UserScope).
    User& user() const;
    bool hasUser() const { return user_ != nullptr; }

    // The front drawing window, or null; not owned. A window that goes takes itself out.
    DrawingWindow* activeWindow() const { return activeWindow_; }
    void setActiveWindow(DrawingWindow* window) { activeWindow_ = window; }

    // The object kinds that a pick may return; at first all of them.
    SelDescrimT& pickFilter() { return pickFilter_; }
    SnapSwitches& snap() { return snap_; }

    // The list of things to delete that is open, or null; not owned.
    DeletionList* deletionList() const { return deletionList_; }
    void setDeletionList(DeletionList* list) { deletionList_ = list; }

    Journal& journal() { return journal_; }
    MemoryBlocks& blocks() { return blocks_; }
    Ports& ports() { return ports_; }
    PolygonRecording& recording() { return recording_; }
    OpenDialogs& dialogs() { return dialogs_; }
    DialogDrag& drag() { return drag_; }
    TPalette& palette() { return palette_; }
    PluginResourceFile& plugin() { return plugin_; }
    Storage& storage() { return storage_; }

  private:
    friend class UserScope;

    User* user_ = nullptr;
    DrawingWindow* activeWindow_ = nullptr;
    DeletionList* deletionList_ = nullptr;
    SelDescrimT pickFilter_;
    SnapSwitches snap_;
    Journal journal_;
    MemoryBlocks blocks_;
    Ports ports_;
    PolygonRecording recording_;
    OpenDialogs dialogs_;
    DialogDrag drag_;
    TPalette palette_;
    PluginResourceFile plugin_;
    Storage storage_;
};

// Makes somebody the user of the process for a scope; then it is whoever was before.
class UserScope {
  public:
    UserScope(Process& process, User& user)
        : process_(process), before_(std::exchange(process.user_, &user)) {}
    UserScope(const UserScope&) = delete;
    UserScope& operator=(const UserScope&) = delete;
    ~UserScope() { process_.user_ = before_; }

  private:
    Process& process_;
    User* before_;
};

// The process that is alive, for the operations of the interface, which are free functions: all other code is
// handed what it needs. Throws std::logic_error if there is none.
Process& process();

// The journal of the process if it is to be written to, else null.
Journal* openJournal();

// Notes an operation of the interface (see Journal::note). Operations that need nothing of the process work
// without one, and are then not noted.
template <class... Values> void journal(std::string_view operation, const Values&... values) {
    if (Journal* const open = openJournal())
        open->note(operation, values...);
}

} // namespace easel::runtime
