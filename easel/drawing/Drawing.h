// A drawing: its objects from back to front, what is selected, what can be undone, and the file it came from.
#pragma once

#include "easel/drawing/DisplayList.h"
#include "easel/drawing/History.h"
#include "easel/drawing/PlaceIndex.h"
#include "easel/drawing/Snapshot.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace easel::drawing {

// What a drawing keeps of its file for the code that writes it back. Only that code knows what is in it.
class DocumentSource {
  public:
    DocumentSource() = default;
    DocumentSource(const DocumentSource&) = delete;
    DocumentSource& operator=(const DocumentSource&) = delete;
    virtual ~DocumentSource() = default;
};

class Drawing {
  public:
    // Width and height in drawing units, finite and above 0.
    static Drawing create(double width, double height);
    // A drawing as it was read: nothing selected, nothing to undo, not dirty. Objects are sealed, back to
    // front.
    Drawing(double width, double height, std::vector<ObjectPtr> objects,
            std::shared_ptr<const DocumentSource> source, std::vector<std::string> notes);

    double width() const { return width_; }
    double height() const { return height_; }
    // Whether any of its groups blends with what lies below outside of all groups. What the drawing is laid
    // on has no part in that: such a drawing is painted by itself first.
    bool blends() const { return blends_; }
    // What of the file is kept but not shown, one sentence each, to be told to the user once.
    const std::vector<std::string>& notes() const { return notes_; }
    // Null for a drawing that came from no file.
    const std::shared_ptr<const DocumentSource>& source() const { return source_; }
    Snapshot snapshot() const { return {width_, height_, list_, source_}; }

    // Objects. An index counts from 0 at the back.
    std::size_t size() const { return list_.size(); }
    const ObjectPtr& object(std::size_t index) const { return list_.object(list_.slotAt(index)); }
    // The first object from the back whose id this is. Takes time in proportion to the number of objects.
    std::optional<std::size_t> indexOfId(std::string_view id) const;
    // Back to front.
    template <class Visitor> void forEach(Visitor visit) const {
        list_.forEach([&](Slot, const ObjectPtr& object) { visit(object); });
    }
    // Back to front, the objects whose painting may touch the area.
    std::vector<ObjectPtr> objectsWithin(const Box& area) const;
    // The front-most object of these kinds that lies under the point: inside by its fill rule, or within
    // `reach` drawing units of its outline.
    std::optional<std::size_t> pick(Point point, double reach, KindSet kinds) const;

    // Changes. Each belongs to the step opened by the last `prepareUndo`, or, without one, to none. Where
    // memory runs short (MemoryReserve.h), each throws std::bad_alloc before it changes anything, as undo and
    // redo do. index <= size(). The new object is not selected.
    void insert(std::size_t index, ObjectPtr object);
    // index < size(). The object is no longer selected.
    void erase(std::size_t index);
    // Puts another object in the place of one without a word in the undo history; the selection stays. Index
    // < size().
    void amend(std::size_t index, const ObjectPtr& object);

    // Undo. A prepared undo without a change is no step.
    void prepareUndo(long kind) { history_.prepare(kind, selectedSlots()); }
    // The changes that follow are not part of the prepared step.
    void closeUndo() { history_.close(); }
    std::optional<long> undoKind() const { return history_.preparedKind(); }
    std::size_t undoLevels() const { return history_.undoLevels(); }
    std::size_t redoLevels() const { return history_.redoLevels(); }
    // Bring back objects, order and selection; false if there is nothing to undo or redo.
    bool undo();
    bool redo();
    // Undoes the step of the last `prepareUndo` as if it had never been: it cannot be redone, and what could
    // be redone before it can be again. False if nothing changed since that `prepareUndo`.
    bool takeBack();
    // Whether the drawing differs from what was last read or saved.
    bool dirty() const { return history_.dirty(); }
    void markSaved() { history_.markSaved(); }
    // No state of the drawing counts as saved until it is saved again.
    void markUnsaved() { history_.markUnsaved(); }
    // Numbers the states of the drawing: another one after each change, the same one when a change is undone.
    std::uint64_t revision() const { return history_.revision(); }

    // Selection.
    bool selected(std::size_t index) const { return selection_.contains(list_.slotAt(index)); }
    void select(std::size_t index);
    void unselect(std::size_t index);
    void unselectAll();
    bool hasSelection() const { return !selection_.empty(); }
    // Indices, back to front.
    std::vector<std::size_t> selection() const;
    // So many of the selected objects, in no particular order.
    std::vector<ObjectPtr> someSelected(std::size_t atMost) const;

    // The listener is told each area (drawing units) that has to be painted anew.
    using ChangeListener = std::function<void(const Box& area)>;
    void setChangeListener(ChangeListener listener) { listener_ = std::move(listener); }
    // Marks the areas of the selected objects for painting.
    void invalidateSelection();

  private:
    void putIn(std::size_t index, Slot slot, const ObjectPtr& object);
    ObjectPtr takeOut(Slot slot);
    void apply(const Edit& edit);
    void revert(const Edit& edit);
    void revert(const Step& step);
    std::vector<Slot> selectedSlots() const { return {selection_.begin(), selection_.end()}; }
    void restoreSelection(const std::vector<Slot>& slots);
    void changed(const ObjectPtr& object);

    double width_;
    double height_;
    bool blends_ = false;
    DisplayList list_;
    PlaceIndex places_;
    std::set<Slot> selection_;
    History history_;
    std::shared_ptr<const DocumentSource> source_;
    std::vector<std::string> notes_;
    ChangeListener listener_;
};

} // namespace easel::drawing
