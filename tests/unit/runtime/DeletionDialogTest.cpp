// The base of dialogs that delete: what it asks for, in which order it deletes, and that it destroys itself.
#include "easel/runtime/CommandDialog.h"
#include "easel/runtime/DeletionList.h"
#include "easel/runtime/Process.h"
#include "easel/runtime/User.h"
#include "host/Dialogs.h"
#include "tests/support/IdleUser.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <functional>

namespace tests {
namespace {

using easel::runtime::DeletionCommand;
using easel::runtime::DeletionList;

struct Record {
    std::vector<std::string> things = {};
    std::vector<std::string> deleted = {};
    std::vector<std::string> commands = {};
    int asked = 0;
    bool destroyed = false;
};

const CStr255 kTitle("Things");

class ThingsDialog : public DeleteDialog {
  public:
    explicit ThingsDialog(Record& record, bool multiple = true)
        : DeleteDialog(kTitle.CreateCopy(), multiple), record_(record) {}
    ~ThingsDialog() override { record_.destroyed = true; }

  protected:
    long GetListItemCount() override { return static_cast<long>(record_.things.size()); }
    CFStringRef GetListItemDescription(long index) override {
        ++record_.asked;
        return CStr255(record_.things.at(static_cast<std::size_t>(index))).CreateCopy();
    }
    void DeleteListItem(long index) override {
        record_.deleted.push_back(record_.things.at(static_cast<std::size_t>(index)));
        record_.things.erase(record_.things.begin() + index);
    }
    std::int32_t DoCommand(HICommandExtended command) override {
        record_.commands.push_back(command.commandID == kOKCommand ? "ok" : "cancel");
        return CCarbonDialogBase::DoCommand(command);
    }

  private:
    Record& record_;
};

class ListUser : public IdleUser {
  public:
    using Act = std::function<void(DeletionList&)>;
    explicit ListUser(Act act) : act_(std::move(act)) {}
    void runDeletion(DeletionList& list) override { act_(list); }

  private:
    Act act_;
};

bool runDialog(Record& record, const ListUser::Act& act, bool multiple = true) {
    const TemporaryFolder folder;
    easel::runtime::Process process(easel::classic::StoragePlaces::within(folder.path()));
    ListUser user(act);
    const easel::runtime::UserScope inFront(process, user);
    return (new ThingsDialog(record, multiple))->Run();
}

std::vector<std::string> textsOf(DeletionList& list) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(list.count()));
    for (int row = 0; row < list.count(); ++row)
        texts.push_back(list.text(row));
    return texts;
}

TEST(DeletionDialog, DeletesTheSelectedRowsFromTheLastToTheFirstAndCloses) {
    Record record{.things = {"a", "b", "c", "d", "e"}};
    EXPECT_TRUE(runDialog(record, [](DeletionList& list) {
        EXPECT_EQ(list.title(), "Things");
        EXPECT_THAT(textsOf(list), testing::ElementsAre("a", "b", "c", "d", "e"));
        list.select({3, 0, 4});
        list.command(DeletionCommand::Ok);
        EXPECT_FALSE(list.isOpen());
    }));
    EXPECT_THAT(record.deleted, testing::ElementsAre("e", "d", "a"));
    EXPECT_THAT(record.things, testing::ElementsAre("b", "c"));
}

TEST(DeletionDialog, CancelDeletesNothing) {
    Record record{.things = {"a", "b"}};
    EXPECT_FALSE(runDialog(record, [](DeletionList& list) {
        list.select({0});
        list.command(DeletionCommand::Cancel);
        EXPECT_FALSE(list.isOpen());
    }));
    EXPECT_THAT(record.commands, testing::ElementsAre("cancel"));
    EXPECT_TRUE(record.deleted.empty());
}

TEST(DeletionDialog, OkWithoutASelectionIsNotEvenACommand) {
    Record record{.things = {"a"}};
    runDialog(record, [](DeletionList& list) {
        list.command(DeletionCommand::Ok);
        EXPECT_TRUE(list.isOpen());
    });
    EXPECT_TRUE(record.commands.empty());
}

TEST(DeletionDialog, NeverAsksForItemsWhenThereAreNone) {
    Record record;
    runDialog(record, [](DeletionList& list) {
        EXPECT_EQ(list.count(), 0);
        list.select({0});
        list.command(DeletionCommand::Ok);
    });
    EXPECT_EQ(record.asked, 0);
    Record emptied{.things = {"a", "b"}};
    runDialog(emptied, [&](DeletionList& list) {
        list.select({0});
        emptied.things.clear();
        EXPECT_EQ(list.text(1), "");
        list.command(DeletionCommand::Ok);
    });
    EXPECT_EQ(emptied.asked, 1) << "only to show it, before it was gone";
    EXPECT_TRUE(emptied.deleted.empty());
}

TEST(DeletionDialog, DeletesWhatWasSelectedAlsoWhenTheListChangedMeanwhile) {
    Record record{.things = {"a", "b", "c"}};
    runDialog(record, [&](DeletionList& list) {
        list.select({1, 2});
        record.things = {"new", "c", "b", "a"};
        list.command(DeletionCommand::Ok);
    });
    EXPECT_THAT(record.deleted, testing::UnorderedElementsAre("b", "c"));
    EXPECT_THAT(record.things, testing::ElementsAre("new", "a"));
}

TEST(DeletionDialog, AsksForTheRowsThatAreWantedOnly) {
    Record record{.things = std::vector<std::string>(10'000, "thing")};
    runDialog(record, [&](DeletionList& list) {
        EXPECT_EQ(list.text(9'000), "thing");
        EXPECT_EQ(list.text(9'000), "thing");
    });
    EXPECT_EQ(record.asked, 1);
}

TEST(DeletionDialog, LooksNearByForAThingThatHasMoved) {
    Record record;
    for (int i = 0; i < 1000; ++i)
        record.things.push_back(std::to_string(i));
    runDialog(record, [&](DeletionList& list) {
        list.select({500});
        record.things.insert(record.things.begin(), "new");
        list.command(DeletionCommand::Ok);
    });
    EXPECT_THAT(record.deleted, testing::ElementsAre("500"));
    EXPECT_LT(record.asked, 10);
}

TEST(DeletionDialog, IsDestroyedByTheTimeRunReturns) {
    Record record{.things = {"a"}};
    runDialog(record, [&](DeletionList&) { EXPECT_FALSE(record.destroyed); });
    EXPECT_TRUE(record.destroyed);
}

TEST(DeletionDialog, IsDestroyedAlsoWhenRunThrows) {
    Record record{.things = {"a"}};
    struct Stopped {};
    EXPECT_THROW(runDialog(record, [](DeletionList&) { throw Stopped(); }), Stopped);
    EXPECT_TRUE(record.destroyed);
}

TEST(DeletionDialog, OneRowAtATimeWhereSeveralAreNotAllowed) {
    Record record{.things = {"a", "b"}};
    runDialog(
        record,
        [](DeletionList& list) {
            list.select({1, 0});
            EXPECT_THAT(list.selection(), testing::ElementsAre(0));
        },
        false);
}

TEST(DeletionList, LeavesOutRowsThatAreNotThereAndRepeatedOnes) {
    DeletionList list(
        "", 3, [](const auto& rows) { return std::vector<std::string>(rows.size(), "thing"); },
        easel::runtime::SelectionMode::Several, [](DeletionCommand) {});
    list.select({2, -1, 0, 3, 2});
    EXPECT_THAT(list.selection(), testing::ElementsAre(0, 2));
    list.select({});
    EXPECT_FALSE(list.canConfirm());
}

TEST(DeletionList, IsCanceledWhateverIsSelectedAndConfirmedWhereSomethingIs) {
    std::vector<DeletionCommand> given;
    DeletionList list(
        "", 1, [](const auto&) { return std::vector<std::string>{"thing"}; },
        easel::runtime::SelectionMode::Several, [&](DeletionCommand command) { given.push_back(command); });
    for (const bool selected : {false, true}) {
        if (selected)
            list.select({0});
        list.command(DeletionCommand::Ok);
        list.command(DeletionCommand::Cancel);
    }
    EXPECT_THAT(given,
                testing::ElementsAre(DeletionCommand::Cancel, DeletionCommand::Ok, DeletionCommand::Cancel));
}

TEST(DeletionList, IsOpenUntilItIsClosed) {
    DeletionList list(
        "", 0, [](const auto&) { return std::vector<std::string>(); }, easel::runtime::SelectionMode::Several,
        [](DeletionCommand) {});
    EXPECT_TRUE(list.isOpen());
    list.close();
    EXPECT_FALSE(list.isOpen());
}

TEST(CommandDialog, ListsNothingUntilItIsToldHowMuchThereIs) {
    const easel::runtime::CommandDialog dialog;
    EXPECT_THAT(dialog.textsNow({0, 1}), testing::ElementsAre("", ""));
}

} // namespace
} // namespace tests
