// Reads and writes the bits of a pick filter.
#include "easel/runtime/PickFilter.h"

#include <cstddef>
#include <cstdint>

namespace easel::runtime {

namespace {

constexpr std::size_t kBitsAWord = 32;

bool admits(const SelDescrimT& filter, std::size_t kind) {
    return (filter.kinds[kind / kBitsAWord] >> (kind % kBitsAWord)) & 1u;
}

} // namespace

void admit(SelDescrimT& filter, int kind) {
    const auto bit = static_cast<std::size_t>(kind);
    if (kind >= 0 && bit < filter.kinds.size() * kBitsAWord)
        filter.kinds[bit / kBitsAWord] |= std::uint32_t{1} << (bit % kBitsAWord);
}

SelDescrimT filterOf(drawing::KindSet kinds) {
    SelDescrimT filter;
    for (const drawing::Kind kind : drawing::kAllKinds)
        if (kinds.has(kind))
            admit(filter, static_cast<int>(kind));
    return filter;
}

drawing::KindSet kindsIn(const SelDescrimT& filter) {
    drawing::KindSet kinds;
    for (const drawing::Kind kind : drawing::kAllKinds)
        if (admits(filter, static_cast<std::size_t>(kind)))
            kinds.add(kind);
    return kinds;
}

} // namespace easel::runtime
