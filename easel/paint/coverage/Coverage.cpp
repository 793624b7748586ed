// Rows of coverage as one list of runs.
#include "easel/paint/coverage/Coverage.h"

namespace easel::paint {

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
