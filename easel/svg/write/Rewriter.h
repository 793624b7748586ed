// Carries the changes of a drawing over into the text of the file that it came from.
#pragma once

#include "easel/drawing/Snapshot.h"
#include "easel/svg/text/Source.h"
#include "easel/svg/write/GradientText.h"
#include "easel/svg/write/PaintStatement.h"
#include "easel/svg/write/Splices.h"
#include "easel/svg/write/UseInstance.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace easel::svg {

class Rewriter {
  public:
    Rewriter(const drawing::Snapshot& drawing, const Source& source);

    // The bytes of the file with the changes in it; without changes those that were read.
    std::string rewritten();

  private:
    // A change of one element, as it stands or as one use instance makes it.
    struct Change {
        std::size_t tag = 0;
        std::vector<PaintStatement> paints; // empty: the element goes
    };

    void gatherChanges();
    void addChange(const drawing::ElementSpan& element, std::vector<PaintStatement> paints);
    // What was given to the object since it was read, if it is its element that says so.
    std::vector<PaintStatement> givenPaints(const drawing::Object& object);
    // States the paints that objects of written out use instances took from a `use` element, which is gone.
    void keepContextPaints();
    // Has a use instance written out, and so those around it.
    void writeOut(std::uint32_t instance);
    // What repeats the element that begins here, or something around it, is written out as it was: only the
    // element itself changes, as on the screen.
    void keepCopiesOf(std::uint32_t tag);
    void gatherCopies();

    // Adds what happens to the elements that one use instance made (0: that stand in the file) to the
    // splices.
    void applyChanges(std::uint32_t instance, Splices& splices) const;
    std::string expanded(std::uint32_t instance) const;
    void addBlock(Splices& splices) const;
    std::string keptGradients(const std::string& newText) const;
    void addNewObjects(Splices& splices) const;

    const drawing::Snapshot& drawing_;
    const Source& source_;
    const std::string& text_;
    std::string lineBreak_;
    GradientBlock gradients_;
    std::vector<std::string> newObjects_;
    // By use instance: changes of its own elements, and use instances inside it that are written out.
    std::unordered_map<std::uint32_t, std::vector<Change>> changes_;
    std::unordered_map<std::uint32_t, std::vector<std::uint32_t>> changedInside_;
    std::unordered_set<std::uint32_t> writtenOut_;
    IdSet idsInSheets_; // if anything is written out
    // By the place of a start tag: the use instances that the element is part of, without those that are
    // none.
    std::unordered_multimap<std::uint32_t, std::uint32_t> copies_;
};

} // namespace easel::svg
