// The C library's allocation for all of the program, so that libraries are served like `new` where memory
// ends: the refusal is counted, and the handler of `new` may find some more.
#include "easel/memory/Refusals.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <new>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define EASEL_SANITIZERS_ALLOCATE
#endif
#endif

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(EASEL_SANITIZERS_ALLOCATE)

// NOLINTBEGIN(readability-identifier-naming): the C library's names.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}
// NOLINTEND(readability-identifier-naming)

namespace {

// True when the handler has made room and it is worth another try. What the handler throws takes memory too.
bool handlerMadeRoom() noexcept {
    static thread_local bool isAsking = false;
    const std::new_handler handler = std::get_new_handler();
    if (!handler || isAsking)
        return false;
    isAsking = true;
    bool madeRoom = true;
    try {
        handler();
    } catch (const std::bad_alloc&) {
        madeRoom = false;
    }
    isAsking = false;
    return madeRoom;
}

template <class Allocate> [[gnu::cold, gnu::noinline]] void* triedAgain(Allocate allocate) noexcept {
    easel::memory::countRefusal();
    void* block = nullptr;
    while (!block && handlerMadeRoom())
        block = allocate();
    if (!block)
        errno = ENOMEM;
    return block;
}

template <class Allocate> void* allocated(Allocate allocate) noexcept {
    void* const block = allocate();
    return block ? block : triedAgain(allocate);
}

} // namespace

extern "C" {

void* malloc(std::size_t size) noexcept {
    return allocated([=] { return __libc_malloc(size); });
}

void* calloc(std::size_t count, std::size_t size) noexcept {
    return allocated([=] { return __libc_calloc(count, size); });
}

// A size of nothing frees the block, and null is the answer then.
void* realloc(void* block, std::size_t size) noexcept {
    if (block && size == 0)
        return __libc_realloc(block, size);
    return allocated([=] { return __libc_realloc(block, size); });
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
    return allocated([=] { return __libc_memalign(alignment, size); });
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
    return memalign(alignment, size);
}

int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
    if (alignment % sizeof(void*) != 0 || (alignment & (alignment - 1)) != 0 || alignment == 0)
        return EINVAL;
    void* const found = memalign(alignment, size);
    if (!found)
        return ENOMEM;
    *block = found;
    return 0;
}
}

#endif
