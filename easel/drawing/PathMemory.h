// The memory of a path: its points and verbs in one piece, which copies of the path share until one of them
// changes. Drawings hold very many small paths.
#pragma once

#include "easel/drawing/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <span>

namespace easel::drawing {

// Move and Line take one point, Cubic three (two controls, then the end), Close none.
enum class Verb : std::uint8_t { Move, Line, Cubic, Close };

// Verbs lie in memory from last to first.
class VerbList {
  public:
    using Iterator = std::reverse_iterator<const Verb*>;

    VerbList() = default;
    VerbList(const Verb* last, std::size_t count) : begin_(last + count), end_(last) {}

    Iterator begin() const { return begin_; }
    Iterator end() const { return end_; }
    std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }
    bool empty() const { return begin_ == end_; }
    Verb operator[](std::size_t index) const { return begin_[static_cast<std::ptrdiff_t>(index)]; }
    Verb back() const { return *end_.base(); }

  private:
    Iterator begin_{nullptr};
    Iterator end_{nullptr};
};

class PathMemory {
  public:
    PathMemory() = default;
    PathMemory(const PathMemory& other) noexcept;
    PathMemory(PathMemory&& other) noexcept;
    PathMemory& operator=(PathMemory other) noexcept;
    ~PathMemory();

    std::span<const Point> points() const;
    VerbList verbs() const;
    // The points to be changed; only this path's.
    std::span<Point> ownPoints();

    void add(Verb verb, std::initializer_list<Point> points);
    // Makes room for so many verbs and points in all, and for no more; at least for those that are there.
    void setRoom(std::size_t verbs, std::size_t points);

  private:
    // Points follow the head, and verbs end at the end of the room.
    struct Head;

    bool shared() const;
    void copyTo(std::size_t room);
    void resize(std::size_t room);
    void release() noexcept;

    Head* head_ = nullptr;
};

} // namespace easel::drawing
