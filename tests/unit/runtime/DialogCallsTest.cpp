// The calls of the interface on dialogs that are there: what the user is told and asked, and what becomes of
// items.
#include "easel/runtime/Alert.h"
#include "easel/runtime/DeletionList.h"
#include "host/Files.h"
#include "host/Menus.h"
#include "host/Mouse.h"
#include "host/Windows.h"
#include "tests/support/IdleUser.h"
#include "tests/unit/runtime/KindsDialog.h"

#include <gmock/gmock.h>

#include <optional>

namespace tests {
namespace {

namespace runtime = easel::runtime;
using runtime::Dialog;
using testing::ElementsAre;

// Writes down what it is told and asked.
class ToldUser : public IdleUser {
  public:
    void dialogShown(Dialog& dialog) override {
        EXPECT_TRUE(dialog.shown());
        told.push_back("shown " + dialog.title());
    }
    void dialogClosed(Dialog& dialog) override { told.push_back("closed " + dialog.title()); }
    runtime::Answer confirm(const runtime::Alert& alert) override {
        told.push_back(alert.message());
        return answer;
    }
    std::optional<RGBColor> pickColor(const std::string& prompt, const RGBColor& color) override {
        told.push_back(prompt + " " + std::to_string(color.blue));
        return picked;
    }
    void runDeletion(runtime::DeletionList& list) override {
        told.push_back("list of " + std::to_string(list.count()));
        list.command(runtime::DeletionCommand::Cancel);
    }
    runtime::MouseState mouse() override { return {{}, held}; }

    std::vector<std::string> told;
    runtime::Answer answer = runtime::Answer::No;
    std::optional<RGBColor> picked;
    bool held = false;
};

class CountingObserver : public runtime::DialogObserver {
  public:
    void itemChanged(int, runtime::ItemChange) override {}
    void focusChanged() override {}
    void shownChanged() override {}
    void pixelsDrawn(const easel::paint::PixelRect&) override { ++drawings; }

    int drawings = 0;
};

// Paints the item and all around it.
void paintAll(DialogRef, short) {
    QD::PaintRect({0, 0, 200, 200});
}

class DialogCallsTest : public KindsDialogTest {
  protected:
    Dialog& dialog() { return Dialog::from(dialog_); }
    bool isDrawn() { return dialog().port().pixels()[0] == 0xff000000; }

    ToldUser user_;
    runtime::UserScope inFront_{process_, user_};
    DialogRef dialog_ = newDialog();
};

TEST_F(DialogCallsTest, TheUserIsToldOnceOfADialogThatIsShownAndOfItsEnd) {
    OpaqueWindowPtr* const window = GetDialogWindow(dialog_);
    ShowWindow(window);
    ShowWindow(window);
    ShowWindow(nullptr);
    EXPECT_THAT(user_.told, ElementsAre("shown All kinds"));
    DisposeDialog(dialog_);
    EXPECT_THAT(user_.told, ElementsAre("shown All kinds", "closed All kinds"));
    EXPECT_EQ(process_.dialogs().front(), nullptr);
}

TEST_F(DialogCallsTest, ADialogAsksAsItsResourceSays) {
    EXPECT_FALSE(Confirm(kKindsAlert));
    user_.answer = runtime::Answer::Yes;
    EXPECT_TRUE(Confirm(kKindsAlert));
    EXPECT_FALSE(Confirm(kKindsAlert + 1)) << "there is no such question";
    EXPECT_THAT(user_.told, ElementsAre("Really?", "Really?"));
}

TEST_F(DialogCallsTest, AfterANameThatNoFileCanHaveTheReasonIsSaidInPlaceOfTheQuestion) {
    FSSpec spec{};
    FSMakeFSSpec(-1, 2, "a:b", &spec);
    EXPECT_FALSE(Confirm(kKindsAlert));
    ASSERT_EQ(user_.told.size(), 1U);
    EXPECT_THAT(user_.told[0], testing::EndsWith(". Nothing was saved."));
    EXPECT_FALSE(Confirm(kKindsAlert));
    EXPECT_EQ(user_.told[1], "Really?");
}

TEST_F(DialogCallsTest, OnlyAColorThatIsPickedIsGiven) {
    const RGBColor before{1, 2, 3};
    RGBColor after{7, 8, 9};
    const CStr255 prompt("Caf\x8e");
    EXPECT_FALSE(GetColor({0, 0}, prompt.PascalBytes(), &before, &after));
    EXPECT_EQ(after, (RGBColor{7, 8, 9}));
    user_.picked = RGBColor{4, 5, 6};
    EXPECT_TRUE(GetColor({0, 0}, prompt.PascalBytes(), &before, &after));
    EXPECT_EQ(after, (RGBColor{4, 5, 6}));
    EXPECT_THAT(user_.told, ElementsAre("Café 3", "Café 3"));
}

TEST_F(DialogCallsTest, AnItemIsDrawnWhenItIsMarkedAndTheObserverHearsOfItAtOnce) {
    CountingObserver observer;
    dialog().setObserver(&observer);
    TRect<short> box;
    SetUserDrawProc(dialog_, kUserItem, box, paintAll);
    EXPECT_EQ(box, TRect<short>(130, 10, 150, 90));
    InvalDLogItem(dialog_, kUserItem);
    EXPECT_FALSE(isDrawn());
    UpdateDialog(dialog_, nullptr);
    EXPECT_TRUE(isDrawn());
    EXPECT_EQ(observer.drawings, 1);
    UpdateDialog(dialog_, nullptr);
    EXPECT_EQ(observer.drawings, 1) << "nothing is marked any more";
    dialog().setObserver(nullptr);
}

TEST_F(DialogCallsTest, WhatIsMarkedIsDrawnBeforeTheDialogWaits) {
    CountingObserver observer;
    dialog().setObserver(&observer);
    TRect<short> box;
    SetUserDrawProc(dialog_, kUserItem, box, paintAll);
    short hit = 0;
    ModalDialog(StdDlogFilterUPP, &hit);
    EXPECT_TRUE(isDrawn());
    EXPECT_EQ(observer.drawings, 1);
    dialog().setObserver(nullptr);
}

TEST_F(DialogCallsTest, WhatIsDrawnWhileTheMouseIsHeldIsSeenBeforeItIsWaitedFor) {
    CountingObserver observer;
    dialog().setObserver(&observer);
    SetPortDialogPort(dialog_);
    QD::PaintRect({0, 0, 9, 9});
    EXPECT_FALSE(StillDown());
    EXPECT_EQ(observer.drawings, 1);
    QD::PaintRect({0, 0, 9, 9});
    TPoint<short> to;
    WaitMove({0, 0}, to, 1);
    EXPECT_EQ(observer.drawings, 2);
    dialog().setObserver(nullptr);
}

TEST_F(DialogCallsTest, ASeparatorIsALineAndNothingToWorkWith) {
    TRect<short> box;
    SetUserDrawProc(dialog_, kUserItem, box, UpdateSeparatorUPP);
    EXPECT_TRUE(dialog().item(kUserItem)->divider);
    UpdateDialog(dialog_, nullptr);
    const int middle = 140;
    EXPECT_EQ(dialog().port().pixels()[middle * 200 + 50], 0xff000000 | dialog().screen().theme.separator);
    SetUserDrawProc(dialog_, kUserItem, box, paintAll);
    EXPECT_FALSE(dialog().item(kUserItem)->divider);
    UpdateSeparatorUPP(dialog_, 77);
}

TEST_F(DialogCallsTest, CharactersAreSelectedUpToAnyNumber) {
    SetDLOGText(dialog_, kTypedItem, "typed");
    SelectDLOGText(dialog_, kTypedItem, 1, 3);
    EXPECT_EQ(dialog().item(kTypedItem)->selection, (runtime::TextSelection{1, 3}));
    SelectDLOGText(dialog_, kTypedItem, 0, 32767);
    EXPECT_EQ(dialog().item(kTypedItem)->selection, (runtime::TextSelection{0, 5}));
    constexpr long kFarBeyond = 1L << 33;
    SelectDLOGText(dialog_, kTypedItem, -kFarBeyond - 1, kFarBeyond + 1);
    EXPECT_EQ(dialog().item(kTypedItem)->selection, (runtime::TextSelection{0, 5}));
}

TEST_F(DialogCallsTest, ValuesAreThoseOfTheirItems) {
    SetItemCtlValue(dialog_, kRadioItem, 1);
    EXPECT_EQ(dialog().item(kRadioItem)->value, 1);
    EXPECT_EQ(GetPopMenuSelectedItem(dialog_, kRadioItem), 0) << "it shows no entry";
    SetItemCtlValue(dialog_, kPopupItem, 2);
    EXPECT_EQ(GetPopMenuSelectedItem(dialog_, kPopupItem), 2);
    ControlRef control = nullptr;
    EXPECT_EQ(GetDialogItemAsControl(dialog_, kRadioItem, &control), 0);
    OpaqueMenuRef* menu = nullptr;
    EXPECT_NE(GetControlData(control, 0, kControlPopupButtonMenuHandleTag, kReferenceSize, &menu, nullptr), 0)
        << "a radio button has no menu";
}

TEST_F(DialogCallsTest, AMenuTakesEntriesOneByOneAndSeveralInOneText) {
    ControlRef control = nullptr;
    GetDialogItemAsControl(dialog_, kPopupItem, &control);
    OpaqueMenuRef* menu = nullptr;
    GetControlData(control, 0, kControlPopupButtonMenuHandleTag, kReferenceSize, &menu, nullptr);
    AppendMenu(menu, "third;fourth");
    EXPECT_EQ(CountMenuItems(menu), 4);
    SetMenuItemText(menu, 3, "Caf\x8e");
    CStr255 text;
    GetMenuItemText(menu, 3, text);
    EXPECT_EQ(text.Text(), "Caf\x8e");
    DeleteMenuItem(menu, 1);
    GetMenuItemText(menu, 3, text);
    EXPECT_EQ(text.Text(), "fourth");
    GetMenuItemText(menu, 4, text);
    EXPECT_EQ(text.Text(), "");
}

// Runs without a list of things.
class BareDialog : public CCarbonDialogBase {
  protected:
    ~BareDialog() override = default;
};

TEST_F(DialogCallsTest, ADialogOfCommandsListsNothingByItself) {
    EXPECT_FALSE((new BareDialog)->Run());
    EXPECT_THAT(user_.told, ElementsAre("list of 0"));
    EXPECT_EQ(process_.deletionList(), nullptr);
}

// Gives commands of its own to a dialog that knows no more than the base of all.
class PlainDialog : public DeleteDialog {
  public:
    PlainDialog() : DeleteDialog(CStr255("Plain").CreateCopy(), false) {}

    bool canProcess(std::uint32_t command) { return CanProcessCommand({0, command}); }
    std::int32_t process(std::uint32_t command) { return DoCommand({0, command}); }
    void DoOKAction() override {
        DeleteDialog::DoOKAction();
        ++confirmed;
    }
    void DoCancelAction() override {
        CCarbonDialogBase::DoCancelAction();
        ++canceled;
    }
    void destroy() { delete this; }

    int confirmed = 0;
    int canceled = 0;

  protected:
    ~PlainDialog() override = default;
    long GetListItemCount() override { return 2; }
    CFStringRef GetListItemDescription(long) override { return CStr255("thing").CreateCopy(); }
    void DeleteListItem(long) override { ADD_FAILURE() << "nothing is selected"; }
};

TEST_F(DialogCallsTest, ADialogOfCommandsKnowsOkAndCancelOnly) {
    auto* const plain = new PlainDialog;
    EXPECT_NE(plain->process(FourCC("help")), 0);
    EXPECT_EQ(plain->process(kCancelCommand), 0);
    EXPECT_EQ(plain->canceled, 1);
    EXPECT_EQ(plain->confirmed, 0);
    EXPECT_EQ(plain->process(kOKCommand), 0);
    EXPECT_EQ(plain->canceled, 1);
    EXPECT_EQ(plain->confirmed, 1);
    plain->destroy();
}

TEST_F(DialogCallsTest, ADialogThatDoesNotRunHasNothingToConfirm) {
    auto* const plain = new PlainDialog;
    EXPECT_FALSE(plain->canProcess(kOKCommand));
    EXPECT_TRUE(plain->canProcess(kCancelCommand));
    plain->destroy();
}

} // namespace
} // namespace tests
