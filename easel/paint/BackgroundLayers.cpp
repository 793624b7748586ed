#include "easel/paint/BackgroundLayers.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

namespace easel::paint {

namespace {

constexpr std::size_t kMostBackgroundBytes = std::size_t{96} << 20;

std::size_t bytesIn(const FilteredPicture& picture) {
    return picture.pixels ? static_cast<std::size_t>(picture.pixels->stride()) *
                                static_cast<std::size_t>(picture.pixels->height())
                          : 0;
}

} // namespace

BackgroundLayers::Pixels BackgroundLayers::paintedBy(const Painting& painting, const Unwanted& unwanted) {
    try {
        return painting(unwanted);
    } catch (const GivenUp&) {
        return nullptr;
    } catch (const std::bad_alloc&) {
        shortage_ = true;
        return nullptr;
    }
}

void BackgroundLayers::beginFrame(std::chrono::milliseconds patience) {
    collect();
    deadline_ = std::chrono::steady_clock::now() + patience;
    ++frame_;
}

// Nothing is destroyed under the lock.
void BackgroundLayers::collect() {
    objects_.takeEnded();
    pictures_.takeEnded();
    Entries discarded;
    const std::lock_guard lock(mutex_);
    discarded.swap(discarded_);
}

void BackgroundLayers::beginView() {
    const std::lock_guard lock(mutex_);
    ++view_;
    discardAll([](const Entry& entry) {
        return entry.state == State::Done ? !entry.picture.pixels : !entry.work->begun;
    });
}

BackgroundLayers::Shown BackgroundLayers::layer(const Layer& layer,
                                                const std::function<Painting()>& painting) {
    std::unique_lock lock(mutex_);
    auto entry = find(layer);
    if (entry == entries_.end()) {
        giveUpOthers(layer);
        const auto work = std::make_shared<WorkQueue::Work>();
        work->run = [this, work = work.get(), area = layer.area, paint = painting()](
                        const Unwanted& unwanted) { finish(*work, area, paintedBy(paint, unwanted)); };
        entries_.push_front({layer.what,
                             {layer.objects.begin(), layer.objects.end()},
                             {layer.grid, nullptr},
                             layer.kind,
                             State::Waiting,
                             work,
                             frame_,
                             frame_,
                             view_});
        entry = entries_.begin();
        lock.unlock();
        queueOf(layer.kind).post(work);
        lock.lock();
    }
    entry->frame = frame_;
    entry->view = view_;
    if (entry->first == frame_)
        painted_.wait_until(lock, deadline_, [&] { return entry->state == State::Done; });
    return shown(entry);
}

// The layer itself, or what comes nearest to it.
BackgroundLayers::Shown BackgroundLayers::shown(Entries::iterator entry) {
    entries_.splice(entries_.begin(), entries_, entry);
    if (entry->state == State::Done)
        return {entry->picture, true};
    const auto earlier = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& one) {
        return one.what == entry->what && one.picture.pixels;
    });
    return earlier == entries_.end() ? Shown{} : Shown{earlier->picture, false};
}

BackgroundLayers::Entries::iterator BackgroundLayers::find(const Layer& layer) {
    return std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        return entry.what == layer.what && entry.picture.grid == layer.grid &&
               std::equal(entry.objects.begin(), entry.objects.end(), layer.objects.begin(),
                          layer.objects.end());
    });
}

// Another state of the same objects is under way in vain, and so is what was begun at another zoom.
void BackgroundLayers::giveUpOthers(const Layer& layer) {
    discardAll([&](const Entry& entry) {
        const bool other = entry.picture.grid.drawingTo != layer.grid.drawingTo || !entry.objects.empty();
        return entry.what == layer.what && entry.state == State::Waiting && other && entry.frame != frame_;
    });
}

template <class Condition> void BackgroundLayers::discardAll(Condition condition) {
    for (auto entry = entries_.begin(); entry != entries_.end();) {
        const auto next = std::next(entry);
        if (condition(*entry))
            discard(entry);
        entry = next;
    }
}

void BackgroundLayers::discard(Entries::iterator entry) {
    if (entry->state == State::Waiting)
        queueOf(entry->kind).giveUp(entry->work);
    bytes_ -= bytesIn(entry->picture);
    discarded_.splice(discarded_.begin(), entries_, entry);
}

void BackgroundLayers::finish(const WorkQueue::Work& work, const drawing::Box& area, const Pixels& pixels) {
    {
        const std::lock_guard lock(mutex_);
        const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                        [&](const Entry& one) { return one.work.get() == &work; });
        if (entry == entries_.end())
            return;
        // What it showed before takes no more room.
        discardAll([&](const Entry& one) {
            return one.what == entry->what && one.picture.grid == entry->picture.grid &&
                   one.frame < entry->frame && one.state == State::Done;
        });
        const std::size_t bytes = bytesIn({{}, pixels});
        if (makeRoom(bytes)) {
            entry->picture.pixels = pixels;
            bytes_ += bytes;
        }
        entry->state = State::Done;
        readyAreas_.push_back(area);
    }
    painted_.notify_all();
    ready_();
}

// Nothing goes that shows now: it would be asked for again, and so on without end.
bool BackgroundLayers::makeRoom(std::size_t bytes) {
    for (auto entry = entries_.end(); bytes_ + bytes > kMostBackgroundBytes && entry != entries_.begin();) {
        --entry;
        const auto oldest = entry;
        if (oldest->state == State::Done && oldest->view != view_) {
            ++entry;
            discard(oldest);
        }
    }
    return bytes_ + bytes <= kMostBackgroundBytes;
}

std::vector<drawing::Box> BackgroundLayers::takeReady() {
    collect();
    const std::lock_guard lock(mutex_);
    return std::exchange(readyAreas_, {});
}

bool BackgroundLayers::idle() {
    const std::lock_guard lock(mutex_);
    return std::all_of(entries_.begin(), entries_.end(),
                       [](const Entry& entry) { return entry.state == State::Done; });
}

void BackgroundLayers::clear() {
    {
        const std::lock_guard lock(mutex_);
        while (!entries_.empty())
            discard(entries_.begin());
        readyAreas_.clear();
    }
    collect();
}

} // namespace easel::paint
