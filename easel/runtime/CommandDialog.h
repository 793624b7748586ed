// What a dialog that is driven by commands knows of the things it lists.
#pragma once

#include "easel/runtime/DeletionList.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace easel::runtime {

struct CommandDialog {
    std::string title; // UTF-8
    SelectionMode mode = SelectionMode::Several;
    // How many things there are now, and the text (UTF-8) of the one at an index, which must be there.
    std::function<long()> count = [] { return 0L; };
    std::function<std::string(long)> describe;
    DeletionList* list = nullptr; // while the dialog runs
    bool confirmed = false;

    // The texts at these indexes; empty for what is not there any more, since an item must not be asked for
    // when there are none.
    std::vector<std::string> textsNow(const std::vector<int>& indexes) const;

    // Where the thing that was listed in a row is now; nothing if it is gone. What is listed can change
    // behind the dialog's back, and then a row must not name another thing than the user selected.
    std::optional<long> find(int row) const;
};

} // namespace easel::runtime
