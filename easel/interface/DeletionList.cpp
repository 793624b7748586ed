// Selection and commands of the list of things to delete.
#include "easel/interface/DeletionList.h"

#include <algorithm>
#include <utility>

namespace easel::host {

DeletionList::DeletionList(std::string title, long count, Describe describe, SelectionMode mode,
                           Handler handler)
    : title_(std::move(title)), describe_(std::move(describe)), rows_(static_cast<std::size_t>(count)),
      mode_(mode), handler_(std::move(handler)) {}

const std::string& DeletionList::text(int row) {
    auto& text = rows_[static_cast<std::size_t>(row)];
    if (!text)
        text = describe_(row);
    return *text;
}

void DeletionList::select(std::vector<int> rows) {
    std::erase_if(rows, [this](int row) { return row < 0 || row >= count(); });
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (mode_ == SelectionMode::One && rows.size() > 1)
        rows.erase(rows.begin() + 1, rows.end());
    selection_ = std::move(rows);
    for (const int row : selection_)
        text(row);
}

void DeletionList::command(DeletionCommand command) {
    if (command == DeletionCommand::Ok && !canConfirm())
        return;
    handler_(command);
}

} // namespace easel::host
