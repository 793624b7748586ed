// What an alert is about, which its resource leaves open.
#include "easel/runtime/Alert.h"
#include "easel/runtime/DeletionList.h"
#include "host/Dialogs.h"
#include "host/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/IdleUser.h"

#include <gmock/gmock.h>

namespace tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kResources = R"(<resources>
  <alert id="9" title="Sure" confirm="Do it" decline="Leave it" text="Really?"/>
</resources>)";
constexpr short kAlert = 9;
// Where the names of templates are looked for.
constexpr short kVolume = -1;
constexpr long kFolder = 2;

// Remembers what it was asked about, and selects in lists.
class AskedUser : public IdleUser {
  public:
    easel::runtime::Answer confirm(const easel::runtime::Alert& alert) override {
        about = alert.about;
        return easel::runtime::Answer::No;
    }
    void runDeletion(easel::runtime::DeletionList& list) override {
        list.select({0, 2});
        list.command(easel::runtime::DeletionCommand::Ok);
    }

    std::vector<std::string> about{"never asked"};
};

// Asks before it deletes.
class CarefulDialog : public DeleteDialog {
  public:
    CarefulDialog() : DeleteDialog(CStr255("Things").CreateCopy(), true) {}

  protected:
    long GetListItemCount() override { return 3; }
    CFStringRef GetListItemDescription(long index) override {
        return CStr255("thing " + std::to_string(index)).CreateCopy();
    }
    void DeleteListItem(long) override {}
    std::int32_t DoCommand(HICommandExtended command) override {
        return Confirm(kAlert) ? CCarbonDialogBase::DoCommand(command) : 0;
    }
};

class AlertTest : public HostTest {
  protected:
    AlertTest() {
        writeContent(folder_ / "Odd" / "Odd.xml", kResources);
        EXPECT_TRUE(process_.plugin().open(folder_ / "Odd"));
        writeContent(folder_ / "Sunset", "");
    }

    FSSpec resolved(const char* name) {
        FSSpec spec{};
        FSMakeFSSpec(kVolume, kFolder, CStr255(name), &spec);
        return spec;
    }

    AskedUser user_;
    easel::runtime::UserScope inFront_{process_, user_};
};

TEST_F(AlertTest, NamesTheFileThatWasJustFound) {
    resolved("Sunset");
    EXPECT_FALSE(Confirm(kAlert));
    EXPECT_THAT(user_.about, ElementsAre("Sunset"));
    EXPECT_FALSE(Confirm(kAlert));
    EXPECT_THAT(user_.about, IsEmpty()) << "another question is not about it";
}

TEST_F(AlertTest, NamesNoFileThatIsNotThereOrIsInUseAlready) {
    resolved("Dawn");
    EXPECT_FALSE(Confirm(kAlert));
    EXPECT_THAT(user_.about, IsEmpty());
    const FSSpec found = resolved("Sunset");
    CloseResFile(FSpOpenResFile(&found, kReadPermission));
    EXPECT_FALSE(Confirm(kAlert));
    EXPECT_THAT(user_.about, IsEmpty());
}

TEST_F(AlertTest, NamesWhatIsSelectedInTheListThatIsOpen) {
    resolved("Sunset");
    (new CarefulDialog)->Run();
    EXPECT_THAT(user_.about, ElementsAre("thing 0", "thing 2"));
    EXPECT_FALSE(Confirm(kAlert));
    EXPECT_THAT(user_.about, IsEmpty()) << "the list is gone";
}

} // namespace
} // namespace tests
