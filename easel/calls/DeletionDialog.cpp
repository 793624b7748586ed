// The bases of dialogs that are driven by commands, as the host interface names them.
#include "host/Dialogs.h"

#include "easel/runtime/CFString.h"
#include "easel/runtime/DeletionList.h"
#include "easel/runtime/Host.h"
#include "easel/runtime/Journal.h"
#include "easel/runtime/Storage.h"
#include "easel/runtime/User.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

using easel::runtime::DeletionCommand;
using easel::runtime::DeletionList;
using easel::runtime::journal;
using easel::runtime::SelectionMode;
using easel::runtime::theHost;

namespace {

constexpr std::int32_t kNoError = 0;
constexpr std::int32_t kCommandNotHandled = -9874;

// The text of a string object that is given up with this.
std::string taken(CFStringRef string) {
    std::string text = easel::runtime::utf8Of(string);
    CFRelease(string);
    return text;
}

} // namespace

struct CCarbonDialogBase::State {
    std::string title;
    SelectionMode mode = SelectionMode::Several;
    std::function<long()> count = [] { return 0L; };
    std::function<std::string(long)> describe;
    DeletionList* list = nullptr; // while the dialog runs
    bool confirmed = false;

    // Empty for what is not there any more: an item must not be asked for when there are none.
    std::vector<std::string> textsNow(const std::vector<int>& indexes) const {
        const long there = count();
        std::vector<std::string> texts;
        texts.reserve(indexes.size());
        for (const long index : indexes)
            texts.push_back(index < there ? describe(index) : std::string());
        return texts;
    }

    // Where the thing that was listed in a row is now. What is listed can change behind the dialog's back,
    // and then a row must not name another thing than the user selected. It is looked for near by first.
    std::optional<long> find(int row) const {
        const long there = count();
        const std::string& text = list->text(row);
        const auto isAt = [&](long index) { return index >= 0 && index < there && describe(index) == text; };
        for (long away = 0; away <= std::max<long>(row, there); ++away)
            for (const long index : {row - away, row + away})
                if (isAt(index))
                    return index;
        return std::nullopt;
    }
};

CCarbonDialogBase::CCarbonDialogBase() : state_(std::make_unique<State>()) {}

CCarbonDialogBase::~CCarbonDialogBase() = default;

bool CCarbonDialogBase::Run() {
    journal("CCarbonDialogBase::Run");
    // The class, and with it the code of the destructor, may be a plug-in's, which can be gone after this
    // call.
    struct Destroy {
        void operator()(CCarbonDialogBase* dialog) const { delete dialog; }
    };
    const std::unique_ptr<CCarbonDialogBase, Destroy> self(this);
    const auto carryOut = [this](DeletionCommand given) {
        const HICommandExtended command{0, given == DeletionCommand::Ok ? kOKCommand : kCancelCommand};
        if (CanProcessCommand(command))
            DoCommand(command);
    };
    const auto textsOf = [this](const std::vector<int>& rows) { return state_->textsNow(rows); };
    DeletionList list(state_->title, state_->count(), textsOf, state_->mode, carryOut);
    state_->list = &list;
    theHost().user->runDeletion(list);
    return state_->confirmed;
}

bool CCarbonDialogBase::CanProcessCommand(HICommandExtended command) {
    return command.commandID != kOKCommand || (state_->list != nullptr && state_->list->canConfirm());
}

std::int32_t CCarbonDialogBase::DoCommand(HICommandExtended command) {
    journal("CCarbonDialogBase::DoCommand", command.commandID);
    if (command.commandID != kOKCommand && command.commandID != kCancelCommand)
        return kCommandNotHandled;
    state_->confirmed = command.commandID == kOKCommand;
    if (state_->confirmed)
        DoOKAction();
    else
        DoCancelAction();
    if (state_->list != nullptr)
        state_->list->close();
    return kNoError;
}

void CCarbonDialogBase::DoOKAction() {}

void CCarbonDialogBase::DoCancelAction() {}

DeleteDialog::DeleteDialog(CFStringRef title, bool multiple) {
    State& state = DialogState();
    state.title = taken(title);
    state.mode = multiple ? SelectionMode::Several : SelectionMode::One;
    state.describe = [this](long index) { return taken(GetListItemDescription(index)); };
    state.count = [this] { return GetListItemCount(); };
    journal("DeleteDialog", state.title, multiple);
}

DeleteDialog::~DeleteDialog() = default;

void DeleteDialog::DoOKAction() {
    const State& state = DialogState();
    if (state.list == nullptr)
        return;
    const std::vector<int>& selection = state.list->selection();
    const easel::classic::HostFiles::ManyChanges many(easel::runtime::theStorage().files());
    // A deletion moves those behind it.
    const std::vector<int> lastFirst(selection.rbegin(), selection.rend());
    for (const int row : lastFirst)
        if (const std::optional<long> index = state.find(row))
            DeleteListItem(*index);
}
