// Relocatable memory blocks ("handles"): every live one is known, so that misuse is caught and leaks can be
// counted.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <tl/expected.hpp>
#include <unordered_map>
#include <vector>

namespace easel::runtime {

enum class BlockError {
    NotABlock, // null, never a block, or disposed of already; nothing was touched
    NoMemory,
    Locked, // a locked block keeps its place, so it cannot grow
};

// A block is handed out as the address of its master pointer, which stays put while the bytes may move.
// Used on the user-interface thread only, as all of the host interface is.
class MemoryBlocks {
  public:
    // A block of that many zero bytes, or null when memory runs out. Disposed of by its owner.
    char** create(std::size_t size);
    tl::expected<void, BlockError> dispose(char** block);

    // The block's size in bytes; nothing for what is not a live block.
    std::optional<std::size_t> size(char** block);
    // Keeps the bytes up to the smaller size; new bytes are zero.
    tl::expected<void, BlockError> resize(char** block, std::size_t size);

    // Adds bytes at the end.
    tl::expected<void, BlockError> append(char** block, std::span<const char> more);

    // Locks do not nest: one unlock frees the block to move again.
    tl::expected<void, BlockError> lock(char** block);
    tl::expected<void, BlockError> unlock(char** block);

    std::size_t live() const { return blocks_.size(); }
    // How many operations were asked of something that is not a live block.
    std::size_t misuses() const { return misuses_; }

  private:
    enum class Place { Movable, Locked };
    struct Block {
        char* address = nullptr;
        std::vector<char> bytes;
        Place place = Place::Movable;
    };

    Block* find(char** block);
    template <class Change>
    tl::expected<void, BlockError> change(char** block, std::size_t newSize, const Change& change);
    tl::expected<void, BlockError> setPlace(char** block, Place place);

    std::unordered_map<char**, std::unique_ptr<Block>> blocks_;
    std::size_t misuses_ = 0;
};

} // namespace easel::runtime
