// Running a dialog whose buttons are not in their usual places.
#include "host/Dialogs.h"
#include "tests/support/HostTest.h"
#include "tests/support/IdleUser.h"

#include <optional>

namespace easel::runtime {
namespace {

constexpr const char* kResources = R"(<resources>
  <dialog id="7" title="Odd" width="200" height="100">
    <button item="1" bounds="70 10 90 90" title="Help"/>
    <button item="2" bounds="70 110 90 190" title="Go" default="yes"/>
    <button item="3" bounds="40 110 60 190" title="Leave" cancel="yes"/>
  </dialog>
  <dialog id="8" title="Plain" width="200" height="100">
    <button item="1" bounds="70 10 90 90" title="One"/>
  </dialog>
</resources>)";

// Presses a key, or quits the program.
class KeyUser : public tests::IdleUser {
  public:
    std::int16_t nextHit(Dialog& dialog) override {
        if (key)
            dialog.pressKey(*key);
        return static_cast<std::int16_t>(dialog.takeHit().value_or(0));
    }

    std::optional<DialogKey> key;
};

class ModalDialogTest : public tests::HostTest {
  protected:
    ModalDialogTest() {
        tests::writeContent(folder_ / "Odd" / "Odd.xml", kResources);
        EXPECT_TRUE(process_.plugin().open(folder_ / "Odd"));
    }

    // The item that ends the dialog once the user has pressed the key, or quit.
    short itemFor(short dialog, std::optional<DialogKey> key, ModalFilterUPP filter = StdDlogFilterUPP) {
        user_.key = key;
        const DialogRef ref = TessGetNewDialog(dialog, nullptr, InFrontOfAllWindows());
        short hit = -1;
        ModalDialog(filter, &hit);
        DisposeDialog(ref);
        return hit;
    }

    KeyUser user_;
    UserScope inFront_{process_, user_};
};

TEST_F(ModalDialogTest, TheStandardKeysHitWhatTheResourceNamesAsDefaultAndCancel) {
    EXPECT_EQ(itemFor(7, DialogKey::Enter), 2);
    EXPECT_EQ(itemFor(7, DialogKey::Escape), 3);
}

TEST_F(ModalDialogTest, QuittingIsTheCancelButton) {
    EXPECT_EQ(itemFor(7, std::nullopt), 3);
    EXPECT_EQ(itemFor(8, std::nullopt), 2) << "where it usually is, since none is named";
}

TEST_F(ModalDialogTest, WithoutTheStandardFilterNoKeyStandsForAnItem) {
    EXPECT_EQ(itemFor(7, DialogKey::Enter, nullptr), 3) << "no hit, which is a cancel";
}

} // namespace
} // namespace easel::runtime
