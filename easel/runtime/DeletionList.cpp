// Selection and commands of the list of things to delete.
#include "easel/runtime/DeletionList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace easel::runtime {

DeletionList::DeletionList(std::string title, long count, Describe describe, SelectionMode mode,
                           Handler handler)
    : title_(std::move(title)), describe_(std::move(describe)), rows_(static_cast<std::size_t>(count)),
      mode_(mode), handler_(std::move(handler)) {}

const std::string& DeletionList::text(int row) {
    askFor({row});
    return *rows_[static_cast<std::size_t>(row)];
}

void DeletionList::askFor(const std::vector<int>& rows) {
    std::vector<int> unknown;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(unknown),
                 [this](int row) { return !rows_[static_cast<std::size_t>(row)]; });
    if (unknown.empty())
        return;
    auto texts = describe_(unknown);
    for (std::size_t i = 0; i < unknown.size(); ++i)
        rows_[static_cast<std::size_t>(unknown[i])] = std::move(texts[i]);
}

void DeletionList::select(std::vector<int> rows) {
    std::erase_if(rows, [this](int row) { return row < 0 || row >= count(); });
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (mode_ == SelectionMode::One && rows.size() > 1)
        rows.erase(rows.begin() + 1, rows.end());
    selection_ = std::move(rows);
    askFor(selection_);
}

void DeletionList::command(DeletionCommand command) {
    if (command == DeletionCommand::Ok && !canConfirm())
        return;
    handler_(command);
}

} // namespace easel::runtime
