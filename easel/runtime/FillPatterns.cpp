// Tells fill patterns apart.
#include "easel/runtime/FillPatterns.h"

namespace easel::runtime {

const SharedResourcePtr<CPatRecord>& blackPattern() {
    static const SharedResourcePtr<CPatRecord> black(
        new CPatRecord({0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff, 0xff}));
    return black;
}

drawing::FillPattern fillPatternOf(const SharedResourcePtr<CPatRecord>& pattern) {
    const CPatRecord* const rows = pattern;
    if (!rows)
        return drawing::FillPattern::None;
    const CPatRecord* const black = blackPattern();
    return rows->Rows() == black->Rows() ? drawing::FillPattern::SolidBlack : drawing::FillPattern::Other;
}

} // namespace easel::runtime
