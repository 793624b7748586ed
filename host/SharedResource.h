// The counted pointer by which drawing objects hold gradients and fill patterns, and the table behind it.
//
// Nothing here is atomic or locked: all use comes from the host's one user-interface thread.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <memory_resource>

/// A counted pointer to a resource. T derives from CHashBase and is made with `new`.
///
/// Resources with the same HashID are one: wrapping a second one destroys it and shares the first. The hash
/// alone decides. Each module that uses the template has a table of its own; an entry of it is a counted
/// reference too, so a resource lives at least as long as the table of the module that wrapped it.
template <typename T> class SharedResourcePtr {
  public:
    using TypeMap = std::pmr::map<std::uint32_t, SharedResourcePtr>;

    /// An empty pointer.
    SharedResourcePtr() = default;

    /// Takes the resource over; it may be destroyed before this returns. Null gives an empty pointer. If
    /// there is no memory for the counter, the resource is destroyed and std::bad_alloc passed on.
    // Delegating makes the destructor run, and thus frees both, if the table has no room for the entry.
    explicit SharedResourcePtr(T* resource) : SharedResourcePtr() { ShareResource(resource); }

    SharedResourcePtr(SharedResourcePtr const& other) : resource_(other.resource_), count_(other.count_) {
        Retain(count_);
    }

    // Comparing the resources covers assigning a pointer to itself.
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
    SharedResourcePtr& operator=(SharedResourcePtr const& other) {
        if (resource_ == other.resource_) {
            return *this;
        }
        T* const resource = other.resource_;
        std::uint32_t* const count = other.count_;
        // Retaining first is safe even if the old value holds the last reference to what the new one depends
        // on.
        Retain(count);
        Release();
        resource_ = resource;
        count_ = count;
        return *this;
    }

    ~SharedResourcePtr() { Release(); }

    /// The resource, null for an empty pointer.
    T* operator->() const { return resource_; }
    operator T const*() const { return resource_; }

    /// Number of references to the resource, the table's included; 0 for an empty pointer.
    [[nodiscard]] std::uint32_t UseCount() const { return count_ == nullptr ? 0 : *count_; }

    /// The module's table of the resources in use, made on the first call. Entries stay until the module is
    /// unloaded.
    // Hidden, so that the table is the module's own: with default visibility the loader would merge the
    // tables of all modules and could never unload one of them.
    __attribute__((visibility("hidden"))) static TypeMap& GetTypeMap() {
        static Table table;
        return table.map;
    }

  private:
    // Entries never go, and those of many resources are found faster side by side.
    struct Table {
        std::pmr::monotonic_buffer_resource memory;
        TypeMap map{&memory};
    };

    static void Retain(std::uint32_t* count) {
        if (count != nullptr) {
            ++*count;
        }
    }

    // Kept out of line: inlined twice into one function, GCC 12 takes the second for a use of a freed
    // counter.
    __attribute__((noinline)) void Release() {
        if (count_ != nullptr && --*count_ == 0) {
            delete resource_;
            delete count_;
        }
    }

    void ShareResource(T* resource) {
        if (resource == nullptr) {
            return;
        }
        std::unique_ptr<T> fresh(resource);
        TypeMap& map = GetTypeMap();
        std::uint32_t const id = fresh->HashID();
        auto const place = map.lower_bound(id);
        if (place != map.end() && place->first == id) {
            fresh.reset();
            *this = place->second;
            return;
        }
        count_ = new std::uint32_t(1);
        resource_ = fresh.release();
        map.emplace_hint(place, id, *this);
    }

    T* resource_ = nullptr;
    std::uint32_t* count_ = nullptr;
};
