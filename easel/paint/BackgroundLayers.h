// What takes long to paint on a canvas, painted beside it; what was there before is shown meanwhile.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/paint/FilteredPicture.h"
#include "easel/paint/pixels/WorkQueue.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

namespace easel::paint {

// Belongs to the thread of the window: objects are destroyed there, since gradients are counted without
// locks. Its threads begin with the first layer that is asked for.
class BackgroundLayers {
  public:
    using Pixels = std::shared_ptr<const Surface>;
    // May throw; then the layer stays empty.
    using Painting = std::function<Pixels(const Unwanted& unwanted)>;

    // What the work is about. Pictures that have to be decoded hold up nothing else.
    enum class Kind : std::uint8_t { Objects, Picture };

    // A layer is what `what`, which may depend on the objects, shows on this grid.
    struct Layer {
        std::shared_ptr<const void> what;
        std::span<const drawing::ObjectPtr> objects;
        FilterGrid grid;
        drawing::Box area; // of the drawing; painted again when the layer is there
        Kind kind = Kind::Objects;
    };

    struct Shown {
        FilteredPicture picture; // without pixels if there is none
        bool exact = false;      // else it is an earlier layer of the same thing
    };

    // `ready` is called by another thread each time that a layer has been painted.
    explicit BackgroundLayers(std::function<void()> ready) : ready_(std::move(ready)) {}
    // Gives up what is under way.
    ~BackgroundLayers() = default;

    // The frame waits so long in all for layers that no frame before needed.
    void beginFrame(std::chrono::milliseconds patience);
    // From now on other layers are needed, and what was not begun is given up. Of those that were needed
    // for the last view, as many are kept as there is room for. What finds no room is left out of a view.
    void beginView();
    // Any thread may ask during a frame. `painting` gives what paints the layer if nobody does so already.
    Shown layer(const Layer& layer, const std::function<Painting()>& painting);
    // Where layers have been painted since this was last asked.
    std::vector<drawing::Box> takeReady();
    // Whether a layer was not painted for want of memory since this was last asked.
    bool takeShortage() { return shortage_.exchange(false); }
    // Whether everything that was asked for is there.
    bool idle();
    // Nothing that is known or under way is of use any more.
    void clear();

  private:
    enum class State : std::uint8_t { Waiting, Done };
    struct Entry {
        std::shared_ptr<const void> what;
        std::vector<drawing::ObjectPtr> objects;
        FilteredPicture picture; // with pixels once it is done, unless that failed
        Kind kind = Kind::Objects;
        State state = State::Waiting;
        WorkQueue::WorkPtr work;
        unsigned first = 0; // the frame that asked for it first
        unsigned frame = 0; // the last one
        unsigned view = 0;
    };
    using Entries = std::list<Entry>;

    void collect();
    Entries::iterator find(const Layer& layer);
    void giveUpOthers(const Layer& layer);
    void discard(Entries::iterator entry);
    template <class Condition> void discardAll(Condition condition);
    bool makeRoom(std::size_t bytes);
    void finish(const WorkQueue::Work& work, const drawing::Box& area, const Pixels& pixels);
    Shown shown(Entries::iterator entry);
    WorkQueue& queueOf(Kind kind) { return kind == Kind::Picture ? pictures_ : objects_; }

    Pixels paintedBy(const Painting& painting, const Unwanted& unwanted);

    std::function<void()> ready_;
    std::atomic<bool> shortage_ = false;
    std::chrono::steady_clock::time_point deadline_; // of the present frame
    unsigned frame_ = 0;
    unsigned view_ = 0;
    std::mutex mutex_; // guards what follows
    std::condition_variable painted_;
    Entries entries_; // the last one used is the first
    Entries discarded_;
    std::size_t bytes_ = 0;
    std::vector<drawing::Box> readyAreas_;
    WorkQueue objects_; // their threads end before all else does
    WorkQueue pictures_;
};

} // namespace easel::paint
