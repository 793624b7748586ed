#include "easel/drawing/History.h"

#include <algorithm>
#include <utility>

namespace easel::drawing {

namespace {

template <class Item> void makeRoomIn(std::vector<Item>& items) {
    constexpr std::size_t kFewest = 2;
    if (items.size() == items.capacity())
        items.reserve(std::max(kFewest, items.size() * 2));
}

} // namespace

void History::prepare(long kind, std::vector<Slot> selection) {
    settle();
    open_ = false;
    preparedKind_ = kind;
    prepared_ = Step{kind, {}, std::move(selection), {}, revision_, revision_};
}

void History::close() {
    open_ = false;
    prepared_.reset();
}

void History::record(Edit edit) {
    revision_ = ++lastRevision_;
    if (prepared_) {
        displaced_ = std::exchange(undone_, {});
        mayTakeBack_ = true;
        done_.push_back(std::move(*prepared_));
        prepared_.reset();
        open_ = true;
    }
    if (!open_)
        return;
    done_.back().edits.push_back(std::move(edit));
    done_.back().revisionAfter = revision_;
}

void History::makeRoom() {
    if (prepared_)
        makeRoomIn(done_);
    if (prepared_ || open_)
        makeRoomIn((prepared_ ? *prepared_ : done_.back()).edits);
}

const Edit* History::lastEdit() const {
    return open_ && !done_.back().edits.empty() ? &done_.back().edits.back() : nullptr;
}

void History::lastStepChangedNothing() {
    // Only a pair stands for nothing; a step that did more before has changed something.
    if (!open_ || done_.back().edits.size() != 2)
        return;
    revision_ = done_.back().revisionBefore;
    done_.back().revisionAfter = revision_;
}

void History::settle() {
    mayTakeBack_ = false;
    displaced_.clear();
}

std::optional<Step> History::takeBack() {
    close();
    if (!mayTakeBack_)
        return std::nullopt;
    Step step = std::move(done_.back());
    done_.pop_back();
    undone_ = std::exchange(displaced_, {});
    mayTakeBack_ = false;
    revision_ = revision_ == step.revisionAfter ? step.revisionBefore : ++lastRevision_;
    return step;
}

const Step* History::takeUndo(std::vector<Slot> selection) {
    close();
    settle();
    if (done_.empty())
        return nullptr;
    undone_.push_back(std::move(done_.back()));
    done_.pop_back();
    Step& step = undone_.back();
    step.selectionAfter = std::move(selection);
    // A change outside the steps is not undone with them, so the state before the step does not come back
    // whole.
    revision_ = revision_ == step.revisionAfter ? step.revisionBefore : ++lastRevision_;
    return &step;
}

const Step* History::takeRedo() {
    close();
    settle();
    if (undone_.empty())
        return nullptr;
    done_.push_back(std::move(undone_.back()));
    undone_.pop_back();
    const Step& step = done_.back();
    revision_ = revision_ == step.revisionBefore ? step.revisionAfter : ++lastRevision_;
    return &step;
}

} // namespace easel::drawing
