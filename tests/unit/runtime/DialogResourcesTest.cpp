// Dialogs and alerts as they come out of a plug-in's resources.
#include "easel/runtime/DialogResources.h"
#include "easel/runtime/PluginResourceFile.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

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
  <menu id="8"><entry>One&#8230;</entry><separator/><entry>Three</entry></menu>
  <alert id="9" title="Sure" confirm="Do it" decline="Leave it" text="Really?" detail="It is final."/>
</resources>)";

class DialogResourcesTest : public testing::Test {
  protected:
    DialogResourcesTest() {
        std::filesystem::create_directories(folder_);
        std::ofstream(folder_ / "Test.xml") << kResources;
        const auto opened = openPluginResources(folder_);
        EXPECT_TRUE(opened) << opened.error().message();
    }
    ~DialogResourcesTest() override {
        closePluginResources();
        std::filesystem::remove_all(folder_.parent_path());
    }

    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("dialog-resources-" + std::to_string(::getpid())) / "Test";
};

TEST_F(DialogResourcesTest, ADialogHasItsItemsWithPlacesTextsAndKinds) {
    const auto dialog = dialogDescription(7);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->title, "Caf\xc3\xa9");
    EXPECT_EQ(dialog->width, 200);
    ASSERT_EQ(dialog->items.size(), 6u);
    EXPECT_EQ(dialog->items[0].kind, ItemKind::Button);
    EXPECT_EQ(dialog->items[0].role, ButtonRole::Default);
    EXPECT_EQ(dialog->items[0].accessibleName, "Accept");
    EXPECT_EQ(dialog->items[1].alignment, TextAlignment::Right);
    EXPECT_EQ(dialog->items[1].accessibleName, "Price:") << "the title serves where there is no label";
    EXPECT_EQ(dialog->items[2].tooltip, "In crowns");
    EXPECT_EQ(dialog->items[3].bounds, (paint::PixelRect{40, 10, 60, 190}));
    EXPECT_EQ(dialog->items[5].kind, ItemKind::Radio);
}

TEST_F(DialogResourcesTest, APopupShowsItsMenuAndEveryDialogHasAMenuOfItsOwn) {
    const auto one = dialogDescription(7);
    const auto other = dialogDescription(7);
    ASSERT_TRUE(one && other);
    const Menu& menu = *one->items[4].menu;
    ASSERT_EQ(menu.count(), 3);
    EXPECT_EQ(menu.text(1), "One\xe2\x80\xa6");
    EXPECT_FALSE(menu.selectable(2)) << "a separator";
    EXPECT_EQ(one->items[4].value, 1);
    other->items[4].menu->remove(1);
    EXPECT_EQ(menu.count(), 3);
}

TEST_F(DialogResourcesTest, AnAlertHasItsQuestionAndItsTwoAnswers) {
    const auto alert = alertDescription(9);
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->text, "Really?");
    EXPECT_EQ(alert->detail, "It is final.");
    EXPECT_EQ(alert->yesButton, "Do it");
    EXPECT_EQ(alert->noButton, "Leave it");
}

TEST_F(DialogResourcesTest, WhatIsNotThereIsNone) {
    EXPECT_FALSE(dialogDescription(8));
    EXPECT_FALSE(alertDescription(7));
    closePluginResources();
    EXPECT_FALSE(dialogDescription(7));
}

} // namespace
} // namespace easel::runtime
