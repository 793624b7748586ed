// Rows of coverage as one list of runs.
#include "easel/paint/Coverage.h"

namespace easel::paint {

PixelSpan RowCoverage::extent() const {
    if (full.empty())
        return {partial.front().begin, partial.back().end};
    if (partial.empty())
        return {full.front().begin, full.back().end};
    return {std::min(full.front().begin, partial.front().begin),
            std::max(full.back().end, partial.back().end)};
}

void RowSink::row(int y, const RowCoverage& coverage) {
    runs_.clear();
    auto full = coverage.full.begin();
    const auto addFullBefore = [&](int x) {
        for (; full != coverage.full.end() && full->begin < x; ++full)
            runs_.push_back({full->begin, full->end, kFullCoverage});
    };
    for (const PixelSpan& span : coverage.partial) {
        addFullBefore(span.begin);
        for (int x = span.begin; x < span.end; ++x)
            if (const std::uint32_t covered = coverage.coverage[x]; covered > 0)
                runs_.push_back({x, x + 1, static_cast<int>(covered)});
    }
    addFullBefore(coverage.extent().end);
    if (!runs_.empty())
        row(y, std::span<const CoverageRun>(runs_));
}

} // namespace easel::paint
