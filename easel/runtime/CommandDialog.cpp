// Asks for the things that a dialog lists.
#include "easel/runtime/CommandDialog.h"

#include <algorithm>

namespace easel::runtime {

std::vector<std::string> CommandDialog::textsNow(const std::vector<int>& indexes) const {
    const long there = count();
    std::vector<std::string> texts;
    texts.reserve(indexes.size());
    for (const long index : indexes)
        texts.push_back(index < there ? describe(index) : std::string());
    return texts;
}

// It is looked for near by first.
std::optional<long> CommandDialog::find(int row) const {
    const long there = count();
    const std::string& text = list->text(row);
    const auto isAt = [&](long index) { return index >= 0 && index < there && describe(index) == text; };
    for (long away = 0; away <= std::max<long>(row, there); ++away)
        for (const long index : {row - away, row + away})
            if (isAt(index))
                return index;
    return std::nullopt;
}

} // namespace easel::runtime
