// Dialogs and alerts as they come out of a plug-in's resources.
#include "easel/runtime/DialogResources.h"
#include "easel/runtime/PluginResourceFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace easel::runtime {
namespace {

constexpr const char* kResources = R"(<resources>
  <dialog id="7" title="Caf&#233;" width="200" height="100">
    <button item="1" bounds="70 120 90 190" title="OK" default="yes" label="Accept"/>
    <static item="2" bounds="10 10 30 90" title="Price:" align="right"/>
    <edit item="3" bounds="10 100 30 190" label="Price" tip="In crowns"/>
    <user item="4" bounds="40 10 60 190"/>
    <popup item="5" bounds="70 10 90 110" menu="8"/>
    <radio item="6" bounds="92 10 99 110" title="Cheap"/>
  </dialog>
  <dialog id="6" width="200" height="100"><popup item="1" bounds="70 10 90 110" menu="5"/></dialog>
  <dialog id="4" width="80" height="50">
    <separator item="1" bounds="1 1 9 9"/>
    <edit item="2" bounds="1 1 9 9" number="yes"/>
    <button item="3" bounds="1 1 9 9" title="Caf&#233;" cancel="yes" align="center"/>
  </dialog>
  <menu id="5"/>
  <menu id="8"><entry>One&#8230;</entry><separator/><entry enabled="no">Three</entry></menu>
  <alert id="9" title="Sure" confirm="Do it" decline="Leave it" text="Really?" detail="It is final."/>
</resources>)";

class DialogResourcesTest : public testing::Test {
  protected:
    DialogResourcesTest() {
        tests::writeContent(folder_ / "Test" / "Test.xml", kResources);
        const auto opened = file_.open(folder_ / "Test");
        EXPECT_TRUE(opened) << opened.error().message();
    }
    std::optional<DialogDescription> dialog(int id) const { return dialogDescription(file_.resources(), id); }
    std::optional<Alert> alert(int id) const { return alertDescription(file_.resources(), id); }

    tests::TemporaryFolder folder_;
    PluginResourceFile file_;
};

TEST_F(DialogResourcesTest, ADialogHasItsItemsWithPlacesTextsAndKinds) {
    const auto made = dialog(7);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->title, "Caf\xc3\xa9");
    EXPECT_EQ(made->width, 200);
    ASSERT_EQ(made->items.size(), 6u);
    EXPECT_EQ(made->items[0].kind, ItemKind::Button);
    EXPECT_EQ(made->items[0].role, ButtonRole::Default);
    EXPECT_EQ(made->items[0].accessibleName, "Accept");
    EXPECT_EQ(made->items[1].alignment, TextAlignment::Right);
    EXPECT_EQ(made->items[1].accessibleName, "Price:") << "the title serves where there is no label";
    EXPECT_EQ(made->items[2].tooltip, "In crowns");
    EXPECT_EQ(made->items[3].bounds, (paint::PixelRect{.left = 10, .top = 40, .right = 190, .bottom = 60}));
    EXPECT_EQ(made->items[5].kind, ItemKind::Radio);
}

TEST_F(DialogResourcesTest, ADialogsItemsAreEnabledUnlessTheySeparateOthers) {
    const auto made = dialog(4);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->id, 4);
    EXPECT_EQ(made->height, 50);
    const DialogItem& separator = made->items[0];
    EXPECT_EQ(separator.kind, ItemKind::UserDrawn);
    EXPECT_TRUE(separator.divider);
    EXPECT_FALSE(separator.enabled);
    const DialogItem& field = made->items[1];
    EXPECT_EQ(field.number, 2);
    EXPECT_TRUE(field.enabled);
    EXPECT_FALSE(field.divider);
    EXPECT_TRUE(field.isNumber);
    EXPECT_EQ(field.alignment, TextAlignment::Left);
    const DialogItem& button = made->items[2];
    EXPECT_EQ(button.role, ButtonRole::Cancel);
    EXPECT_EQ(button.text, "Caf\x8e");
    EXPECT_EQ(button.alignment, TextAlignment::Center);
    EXPECT_FALSE(button.isNumber);
}

TEST_F(DialogResourcesTest, APopupShowsItsMenuAndEveryDialogHasAMenuOfItsOwn) {
    const auto one = dialog(7);
    const auto other = dialog(7);
    ASSERT_TRUE(one && other);
    const Menu& menu = *one->items[4].menu;
    ASSERT_EQ(menu.count(), 3);
    EXPECT_EQ(menu.text(1), "One\xe2\x80\xa6");
    EXPECT_EQ(one->items[4].value, 1);
    EXPECT_EQ(dialog(6).value().items[0].value, 0) << "there is no first entry";
    EXPECT_TRUE(menu.selectable(1));
    EXPECT_FALSE(menu.selectable(2)) << "a separator";
    EXPECT_FALSE(menu.selectable(3)) << "disabled";
    EXPECT_EQ(one->items[4].value, 1);
    other->items[4].menu->remove(1);
    EXPECT_EQ(menu.count(), 3);
}

TEST_F(DialogResourcesTest, AnAlertHasItsQuestionAndItsTwoAnswers) {
    const auto made = alert(9);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->text, "Really?");
    EXPECT_EQ(made->detail, "It is final.");
    EXPECT_EQ(made->yesButton, "Do it");
    EXPECT_EQ(made->noButton, "Leave it");
}

TEST_F(DialogResourcesTest, WhatIsNotThereIsNone) {
    EXPECT_FALSE(dialog(8));
    EXPECT_FALSE(alert(7));
    file_.close();
    EXPECT_FALSE(dialog(7));
}

} // namespace
} // namespace easel::runtime
