// Selection and commands of the list of things to delete.
#include "easel/interface/DeletionList.h"

#include <algorithm>
#include <utility>

namespace easel::host {

DeletionList::DeletionList(std::string title, std::vector<std::string> rows, SelectionMode mode,
                           Handler handler)
    : title_(std::move(title)), rows_(std::move(rows)), mode_(mode), handler_(std::move(handler)) {}

void DeletionList::select(std::vector<int> rows) {
    std::erase_if(rows, [this](int row) { return row < 0 || row >= static_cast<int>(rows_.size()); });
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (mode_ == SelectionMode::One && rows.size() > 1)
        rows.erase(rows.begin() + 1, rows.end());
    selection_ = std::move(rows);
}

void DeletionList::command(DeletionCommand command) {
    if (command == DeletionCommand::Ok && !canConfirm())
        return;
    handler_(command);
}

} // namespace easel::host
