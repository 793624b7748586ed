// The bytes of fonts that drawings bring along: whatever they are, text is set in them or in others.
#include "easel/type/LoadedFont.h"
#include "tests/fuzz/Fuzzing.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace easel;
    type::Typesetter* const typesetter = type::typesetter();
    const auto font = typesetter ? typesetter->load({reinterpret_cast<const char*>(data), size}) : nullptr;
    if (!font)
        return 0;
    const std::string text = "AB fi \u05d0\u05d1\u0301 \u0645\u0631 12";
    for (const bool changed : {false, true}) {
        std::size_t covered = 0;
        const type::Look look{
            changed, changed, !changed, changed, {}, changed ? 1 : 1000, changed ? "wdth=75,wght=333" : ""};
        for (const type::Cluster& cluster : font->shape(text, look)) {
            fuzzing::require(cluster.begin < cluster.end && cluster.end <= text.size());
            fuzzing::require(std::isfinite(cluster.advance));
            for (const drawing::Point p : cluster.outline.points())
                fuzzing::require(std::isfinite(p.x) && std::isfinite(p.y));
            covered += cluster.end - cluster.begin;
        }
        fuzzing::require(covered <= text.size());
    }
    font->metrics();
    return 0;
}
