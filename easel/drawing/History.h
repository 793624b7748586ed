// What undo and redo need: the recorded steps, and which of them the saved file shows.
#pragma once

#include "easel/drawing/DisplayList.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace easel::drawing {

// One insertion or deletion.
struct Edit {
    enum class What : std::uint8_t { Insert, Erase };
    What what = What::Insert;
    Slot slot = 0;
    std::size_t index = 0; // of the object when it was in the list
    ObjectPtr object;
};

// All changes made under one prepared undo. Revisions number the states of the drawing.
struct Step {
    long kind = 0;
    std::vector<Edit> edits;
    std::vector<Slot> selectionBefore;
    std::vector<Slot> selectionAfter;
    std::uint64_t revisionBefore = 0;
    std::uint64_t revisionAfter = 0;
};

class History {
  public:
    // Opens a step that the following changes belong to. It is recorded with its first change; redo is lost
    // then.
    void prepare(long kind, std::vector<Slot> selection);
    // Changes from here on belong to no step until the next `prepare`.
    void close();
    // Takes note of a change. Without an open step it cannot be undone. Throws nothing after `makeRoom`.
    void record(Edit edit);
    // Has the memory for the next change. Throws std::bad_alloc if there is none.
    void makeRoom();

    // The last change of the open step; null if it has none.
    const Edit* lastEdit() const;
    // The open step's changes leave the drawing as it was before: it is as saved as it was then.
    void lastStepChangedNothing();

    std::size_t undoLevels() const { return done_.size(); }
    std::size_t redoLevels() const { return undone_.size(); }
    // The kind last given to `prepare`.
    std::optional<long> preparedKind() const { return preparedKind_; }

    // Moves the step to the other side and gives it; null if there is none. The selection is the present one.
    const Step* takeUndo(std::vector<Slot> selection);
    const Step* takeRedo();
    // Forgets the last step, which was recorded after the last `prepare`, and gives it; what could be redone
    // before it can be redone again. Nothing if no step was recorded since then.
    std::optional<Step> takeBack();

    bool dirty() const { return revision_ != savedRevision_; }
    void markSaved() { savedRevision_ = revision_; }
    void markUnsaved() { savedRevision_ = kNoRevision; }
    std::uint64_t revision() const { return revision_; }

  private:
    static constexpr std::uint64_t kNoRevision = UINT64_MAX;

    void settle();

    std::vector<Step> done_;
    std::vector<Step> undone_;
    std::optional<Step> prepared_; // prepared, nothing changed yet
    bool open_ = false;            // the last step of `done_` takes further changes
    bool mayTakeBack_ = false;     // the last step of `done_` came with the last `prepare`
    std::vector<Step> displaced_;  // what the last step made impossible to redo, while it may be taken back
    std::optional<long> preparedKind_;
    std::uint64_t revision_ = 0;
    std::uint64_t lastRevision_ = 0;
    std::uint64_t savedRevision_ = 0;
};

} // namespace easel::drawing
