// What the host relies on in host/SharedResource.h, whose code every module compiles for itself.
#include "host/SharedResource.h"

#include "host/Gradient.h"
#include "host/Objects.h"

#include <type_traits>
#include <utility>

namespace {

// Modules hand these pointers to each other, by value too: all of them have to see a pointer to the resource
// and one to its count.
template <class Resource>
constexpr bool kHasTheAgreedForm = sizeof(SharedResourcePtr<Resource>) == 2 * sizeof(void*) &&
                                   alignof(SharedResourcePtr<Resource>) == alignof(void*) &&
                                   std::is_standard_layout_v<SharedResourcePtr<Resource>>;
static_assert(kHasTheAgreedForm<CGradient>);
static_assert(kHasTheAgreedForm<CPatRecord>);

// Whoever gives up the last reference destroys the resource, be it another module than made it: the way to
// the destructor has to be the host's table of functions, which outlives every plug-in.
template <class Resource>
constexpr bool kIsDestroyedByTheHost =
    std::is_base_of_v<CHashBase, Resource>&& std::has_virtual_destructor_v<CHashBase>;
static_assert(kIsDestroyedByTheHost<CGradient>);
static_assert(kIsDestroyedByTheHost<CPatRecord>);

// Each module keys its own table, so the key has to have the same width in all of them.
static_assert(std::is_same_v<decltype(std::declval<const CHashBase&>().HashID()), std::uint32_t>);

} // namespace
