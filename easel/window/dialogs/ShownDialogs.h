// The plug-in's dialogs that are on the screen, and waiting for what the user does in them.
#pragma once

#include "easel/window/dialogs/ControlItems.h"

#include <cstdint>
#include <map>
#include <memory>

namespace easel::runtime {
class Dialog;
struct DialogItem;
} // namespace easel::runtime

namespace easel::window {

struct Interaction;

class ShownDialogs {
  public:
    // The interaction outlives this.
    ShownDialogs(Interaction& interaction, EntryPicture picture);
    ~ShownDialogs();
    ShownDialogs(const ShownDialogs&) = delete;
    ShownDialogs& operator=(const ShownDialogs&) = delete;

    // The dialog stays the caller's, until it is closed at least.
    void show(runtime::Dialog& dialog);
    // Nothing if it was never shown.
    void close(const runtime::Dialog& dialog);
    // Waits until an item is hit and returns its number; 0 if the waiting is cancelled.
    std::int16_t nextHit(runtime::Dialog& dialog);

  private:
    struct Shown;

    std::int16_t nextHit(runtime::Dialog& dialog, Shown& shown);
    void askForText(runtime::Dialog& dialog, const runtime::DialogItem& field);

    Interaction& interaction_;
    EntryPicture picture_;
    std::map<const runtime::Dialog*, std::unique_ptr<Shown>> shown_;
};

} // namespace easel::window
