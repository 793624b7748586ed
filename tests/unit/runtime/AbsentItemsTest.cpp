// Calls on dialogs, items and menus that are not there or not of the right kind: nothing happens, and what is
// read is zero or empty.
#include "easel/runtime/Dialog.h"
#include "easel/runtime/Process.h"
#include "host/Dialogs.h"
#include "host/Menus.h"
#include "tests/support/HostTest.h"
#include "tests/support/IdleUser.h"

#include <gmock/gmock.h>

namespace easel::runtime {
namespace {

constexpr short kPushButton = 1;
constexpr short kTyped = 2;
constexpr short kStatic = 3;
constexpr short kPopup = 4;
constexpr short kUser = 5;
constexpr short kRadio = 6;
constexpr short kNone = 7;

constexpr long kReferenceSize = sizeof(void*);

constexpr const char* kResources = R"(<resources>
  <menu id="20"><entry>first</entry><entry>second</entry></menu>
  <dialog id="7" title="All kinds" width="200" height="200">
    <button item="1" bounds="10 10 30 90" title="Go"/>
    <edit item="2" bounds="40 10 60 90"/>
    <static item="3" bounds="70 10 90 90" title="Said"/>
    <popup item="4" bounds="100 10 120 90" menu="20"/>
    <user item="5" bounds="130 10 150 90"/>
    <radio item="6" bounds="160 10 180 90" title="One"/>
  </dialog>
</resources>)";

int drawn = 0;

void countDrawing(DialogRef, short) {
    ++drawn;
}

class AbsentItemsTest : public tests::HostTest {
  protected:
    AbsentItemsTest() {
        tests::writeContent(folder_ / "Kinds" / "Kinds.xml", kResources);
        const auto opened = process_.plugin().open(folder_ / "Kinds");
        EXPECT_TRUE(opened) << opened.error().message();
        dialog_ = TessGetNewDialog(7, nullptr, InFrontOfAllWindows());
        EXPECT_NE(dialog_, nullptr);
        SetDLOGText(dialog_, kTyped, "typed");
        drawn = 0;
    }
    ~AbsentItemsTest() override { DisposeDialog(dialog_); }

    std::string textOf(DialogRef dialog, short item) const {
        CStr255 text("what was there");
        GetDLOGText(dialog, item, text);
        return text.Text();
    }

    tests::IdleUser user_;
    UserScope inFront_{process_, user_};
    DialogRef dialog_ = nullptr;
};

TEST_F(AbsentItemsTest, ADialogThatNoResourceDescribesIsNotMade) {
    EXPECT_EQ(TessGetNewDialog(8, nullptr, InFrontOfAllWindows()), nullptr);
}

TEST_F(AbsentItemsTest, ReadAsZeroOrEmpty) {
    const DialogRef closed = TessGetNewDialog(7, nullptr, InFrontOfAllWindows());
    DisposeDialog(closed);
    for (const auto& [dialog, item] : {std::pair{dialog_, kNone}, {dialog_, short{0}}, {closed, kTyped}}) {
        const TRect<short> bounds = GetDialogItemBounds(dialog, item);
        EXPECT_EQ(bounds.top, 0);
        EXPECT_EQ(bounds.right, 0);
        EXPECT_EQ(textOf(dialog, item), "");
        EXPECT_EQ(GetPopMenuSelectedItem(dialog, item), 0);
    }
    EXPECT_EQ(GetDialogItemBounds(dialog_, kTyped).right, 90);
    EXPECT_EQ(textOf(dialog_, kTyped), "typed");
    EXPECT_EQ(GetPopMenuSelectedItem(dialog_, kPopup), 1);
    EXPECT_EQ(GetPopMenuSelectedItem(dialog_, kPushButton), 0) << "a button shows no entry";
}

TEST_F(AbsentItemsTest, AreChangedByNothing) {
    for (const DialogRef dialog : {dialog_, DialogRef{nullptr}}) {
        SetDLOGText(dialog, kNone, "x");
        SelectDLOGText(dialog, kNone, 0, 2);
        SetItemCtlValue(dialog, kNone, 2);
        InvalDLogItem(dialog, kNone);
        TRect<short> box{1, 2, 3, 4};
        SetUserDrawProc(dialog, kNone, box, countDrawing);
        EXPECT_EQ(box.bottom, 3) << "no bounds to give";
        UpdateDialog(dialog, nullptr);
    }
    EXPECT_EQ(textOf(dialog_, kTyped), "typed");
    EXPECT_EQ(GetPopMenuSelectedItem(dialog_, kPopup), 1);
    EXPECT_EQ(drawn, 0);
}

TEST_F(AbsentItemsTest, OnlyButtonsRadioButtonsAndPopupsAreControls) {
    for (const short item : {kPushButton, kPopup, kRadio}) {
        ControlRef control = nullptr;
        EXPECT_EQ(GetDialogItemAsControl(dialog_, item, &control), 0) << item;
        EXPECT_NE(control, nullptr) << item;
    }
    for (const short item : {kTyped, kStatic, kUser, kNone}) {
        ControlRef control = nullptr;
        GetDialogItemAsControl(dialog_, kPopup, &control);
        EXPECT_NE(GetDialogItemAsControl(dialog_, item, &control), 0) << item;
        EXPECT_EQ(control, nullptr) << item;
    }
}

TEST_F(AbsentItemsTest, OnlyAPopupHasAMenuAndOnlyItsOwnTagReadsIt) {
    ControlRef popup = nullptr;
    ControlRef button = nullptr;
    GetDialogItemAsControl(dialog_, kPopup, &popup);
    GetDialogItemAsControl(dialog_, kPushButton, &button);
    OpaqueMenuRef* menu = nullptr;
    long size = 0;
    constexpr OSType kTag = kControlPopupButtonMenuHandleTag;
    EXPECT_NE(GetControlData(nullptr, 0, kTag, kReferenceSize, &menu, &size), 0);
    EXPECT_NE(GetControlData(button, 0, kTag, kReferenceSize, &menu, &size), 0);
    EXPECT_NE(GetControlData(popup, 0, FourCC("font"), kReferenceSize, &menu, &size), 0);
    EXPECT_EQ(size, 0);
    EXPECT_NE(GetControlData(popup, 0, kTag, kReferenceSize - 1, &menu, &size), 0) << "not the half of it";
    EXPECT_EQ(menu, nullptr);
    EXPECT_EQ(size, kReferenceSize);
    EXPECT_EQ(GetControlData(popup, 0, kTag, kReferenceSize, &menu, nullptr), 0);
    EXPECT_EQ(CountMenuItems(menu), 2);
}

TEST_F(AbsentItemsTest, WithoutADialogThePortIsNoneAndAHitIsACancel) {
    SetPortDialogPort(dialog_);
    EXPECT_NE(process_.ports().current(), nullptr);
    SetPortDialogPort(nullptr);
    EXPECT_EQ(process_.ports().current(), nullptr);
    DisposeDialog(dialog_);
    DisposeDialog(dialog_);
    short hit = -1;
    ModalDialog(StdDlogFilterUPP, &hit);
    EXPECT_EQ(hit, 2);
}

TEST_F(AbsentItemsTest, AMenuThatIsNoneHasNoEntriesAndTakesNone) {
    AppendMenu(nullptr, "third");
    SetMenuItemText(nullptr, 1, "other");
    DeleteMenuItem(nullptr, 1);
    EXPECT_EQ(CountMenuItems(nullptr), 0);
    CStr255 text("what was there");
    GetMenuItemText(nullptr, 1, text);
    EXPECT_EQ(text.Text(), "");
}

TEST_F(AbsentItemsTest, AnEntryThatAMenuLacksIsNeitherReadNorChanged) {
    ControlRef popup = nullptr;
    GetDialogItemAsControl(dialog_, kPopup, &popup);
    OpaqueMenuRef* menu = nullptr;
    GetControlData(popup, 0, kControlPopupButtonMenuHandleTag, kReferenceSize, &menu, nullptr);
    for (const short entry : {short{0}, short{3}}) {
        SetMenuItemText(menu, entry, "other");
        DeleteMenuItem(menu, entry);
        CStr255 text("what was there");
        GetMenuItemText(menu, entry, text);
        EXPECT_EQ(text.Text(), "") << entry;
    }
    EXPECT_EQ(CountMenuItems(menu), 2);
}

} // namespace
} // namespace easel::runtime
