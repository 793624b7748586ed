// Relocatable memory blocks, each kept in a vector behind its master pointer.
#include "easel/runtime/MemoryBlocks.h"

#include <new>
#include <stdexcept>

namespace easel::runtime {
namespace {

// An empty vector may have no address at all; a block always has one.
void sizeTo(std::vector<char>& bytes, std::size_t size) {
    bytes.reserve(1);
    bytes.resize(size);
}

} // namespace

char** MemoryBlocks::create(std::size_t size) {
    try {
        auto block = std::make_unique<Block>();
        sizeTo(block->bytes, size);
        block->address = block->bytes.data();
        char** const master = &block->address;
        blocks_.emplace(master, std::move(block));
        return master;
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (const std::length_error&) {
        return nullptr;
    }
}

tl::expected<void, BlockError> MemoryBlocks::dispose(char** block) {
    if (!find(block))
        return tl::unexpected(BlockError::NotABlock);
    blocks_.erase(block);
    return {};
}

std::optional<std::size_t> MemoryBlocks::size(char** block) {
    const auto* const found = find(block);
    return found ? std::optional(found->bytes.size()) : std::nullopt;
}

tl::expected<void, BlockError> MemoryBlocks::resize(char** block, std::size_t size) {
    return change(block, size, [&](std::vector<char>& bytes) { sizeTo(bytes, size); });
}

tl::expected<void, BlockError> MemoryBlocks::append(char** block, std::span<const char> more) {
    const auto* const found = find(block);
    if (!found)
        return tl::unexpected(BlockError::NotABlock);
    const auto end = found->bytes.size() + more.size();
    return change(block, end,
                  [&](std::vector<char>& bytes) { bytes.insert(bytes.end(), more.begin(), more.end()); });
}

template <class Change>
tl::expected<void, BlockError> MemoryBlocks::change(char** block, std::size_t newSize, const Change& change) {
    auto* const found = find(block);
    if (!found)
        return tl::unexpected(BlockError::NotABlock);
    if (found->place == Place::Locked && newSize > found->bytes.capacity())
        return tl::unexpected(BlockError::Locked);
    try {
        change(found->bytes);
    } catch (const std::bad_alloc&) {
        return tl::unexpected(BlockError::NoMemory);
    } catch (const std::length_error&) {
        return tl::unexpected(BlockError::NoMemory);
    }
    found->address = found->bytes.data();
    return {};
}

tl::expected<void, BlockError> MemoryBlocks::lock(char** block) {
    return setPlace(block, Place::Locked);
}

tl::expected<void, BlockError> MemoryBlocks::unlock(char** block) {
    return setPlace(block, Place::Movable);
}

tl::expected<void, BlockError> MemoryBlocks::setPlace(char** block, Place place) {
    auto* const found = find(block);
    if (!found)
        return tl::unexpected(BlockError::NotABlock);
    found->place = place;
    return {};
}

MemoryBlocks::Block* MemoryBlocks::find(char** block) {
    const auto found = blocks_.find(block);
    if (found != blocks_.end())
        return found->second.get();
    ++misuses_;
    return nullptr;
}

} // namespace easel::runtime
