// A counted pointer for what drawings hold very many of: it takes the room of one pointer, and the count lies
// beside the value in one piece of memory. Of both, std::shared_ptr takes twice as much, and Boost's pointer
// of one word wants the count within the value, where it would be copied with it.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>

namespace easel::drawing {

// A value with the number of pointers to it, which begins with one.
template <class T> struct Counted {
    template <class... Arguments>
    explicit Counted(std::in_place_t, Arguments&&... arguments)
        : value(std::forward<Arguments>(arguments)...) {}

    std::atomic<std::uint32_t> uses{1};
    T value;
};

// Threads share values as they do with std::shared_ptr. T has to be complete where pointers to it are made,
// copied or destroyed.
template <class T> class SharedPtr {
  public:
    SharedPtr() = default;
    SharedPtr(std::nullptr_t) {}
    SharedPtr(const SharedPtr& other) noexcept : counted_(other.counted_) { retain(); }
    SharedPtr(SharedPtr&& other) noexcept : counted_(std::exchange(other.counted_, nullptr)) {}
    // What may be changed by one pointer may be kept by another that only looks.
    template <class Changeable>
    requires std::is_same_v<const Changeable, T> SharedPtr(const SharedPtr<Changeable>& other)
    noexcept : counted_(other.counted_) { retain(); }
    SharedPtr& operator=(SharedPtr other) noexcept {
        std::swap(counted_, other.counted_);
        return *this;
    }
    ~SharedPtr() { release(); }

    T* get() const { return counted_ ? &counted_->value : nullptr; }
    T& operator*() const { return counted_->value; }
    T* operator->() const { return &counted_->value; }
    explicit operator bool() const { return counted_ != nullptr; }
    std::uint32_t useCount() const { return counted_ ? counted_->uses.load(std::memory_order_relaxed) : 0; }

    // Whether they point to the very same value.
    friend bool operator==(const SharedPtr&, const SharedPtr&) = default;

    template <class Made, class... Arguments> friend SharedPtr<Made> makeShared(Arguments&&... arguments);

  private:
    using Held = Counted<std::remove_const_t<T>>;
    template <class Other> friend class SharedPtr;

    explicit SharedPtr(Held* counted) : counted_(counted) {}
    void retain() const noexcept {
        if (counted_)
            counted_->uses.fetch_add(1, std::memory_order_relaxed);
    }
    void release() noexcept {
        if (counted_ && counted_->uses.fetch_sub(1, std::memory_order_acq_rel) == 1)
            std::unique_ptr<Held>(counted_).reset();
    }

    Held* counted_ = nullptr;
};

// A new value, made of these.
template <class Made, class... Arguments> SharedPtr<Made> makeShared(Arguments&&... arguments) {
    using Held = typename SharedPtr<Made>::Held;
    return SharedPtr<Made>(
        std::make_unique<Held>(std::in_place, std::forward<Arguments>(arguments)...).release());
}

} // namespace easel::drawing
