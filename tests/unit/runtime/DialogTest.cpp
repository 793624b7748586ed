// The dialog model: what a person does to it and what its observer hears of the program's changes.
#include "easel/runtime/Dialog.h"
#include "easel/paint/Port.h"
#include "easel/runtime/Ports.h"

#include <gtest/gtest.h>

namespace easel::runtime {
namespace {

DialogItem itemOf(int number, ItemKind kind, paint::PixelRect bounds = {}) {
    DialogItem item;
    item.number = number;
    item.kind = kind;
    item.bounds = bounds;
    return item;
}

std::vector<int> gDrawn;
const Ports* gPorts = nullptr;

void recordDrawing(OpaqueDialogPtr* dialog, short item) {
    gDrawn.push_back(item);
    EXPECT_EQ(gPorts->current(), &Dialog::from(dialog).port());
}

class DialogTest : public testing::Test {
  protected:
    DialogTest() { gPorts = &ports_; }
    ~DialogTest() override { gPorts = nullptr; }

    static DialogDescription description() {
        DialogDescription made{7, "Seven", 200, 100, {}};
        made.items = {itemOf(1, ItemKind::Button),
                      itemOf(2, ItemKind::Button),
                      itemOf(3, ItemKind::EditText),
                      itemOf(4, ItemKind::UserDrawn, {.left = 10, .top = 10, .right = 60, .bottom = 20}),
                      itemOf(5, ItemKind::Popup),
                      itemOf(6, ItemKind::UserDrawn)};
        // Not in their usual places.
        made.items[0].role = ButtonRole::Cancel;
        made.items[1].role = ButtonRole::Default;
        made.items[4].menu = std::make_shared<Menu>();
        for (const char* text : {"First", "Second", "-", "Fourth"})
            made.items[4].menu->append({text, true, *text == '-'});
        return made;
    }

    const DialogItem& field() const { return *dialog_.item(3); }
    std::vector<int> hits() {
        std::vector<int> all;
        while (const std::optional<int> hit = dialog_.takeHit())
            all.push_back(*hit);
        return all;
    }
    EditOutcome type(const std::u32string& text) {
        EditOutcome last = EditOutcome::Accepted;
        for (const char32_t letter : text)
            last = dialog_.typeCharacter(letter);
        return last;
    }

    Ports ports_;
    Dialog dialog_{description(), {}, ports_};
};

TEST_F(DialogTest, ADividerLeavesTheKeyboardWhereItIs) {
    dialog_.setFocus(4);
    dialog_.setDivider(6, true);
    dialog_.setFocus(6);
    EXPECT_EQ(dialog_.focus(), 4);
    dialog_.setDivider(6, false);
    dialog_.setFocus(6);
    EXPECT_EQ(dialog_.focus(), 6);
    dialog_.setFocus(7);
    EXPECT_EQ(dialog_.focus(), 0) << "there is no such item";
    EXPECT_EQ(field().selection, (TextSelection{0, 0}));
    dialog_.setDivider(3, true);
    EXPECT_FALSE(field().divider) << "a field is not drawn by the program";
}

TEST_F(DialogTest, OpensWithItsFirstEditFieldFocused) {
    EXPECT_EQ(dialog_.focus(), 3);
}

TEST_F(DialogTest, EveryKeystrokeIsAHitAndReplacesTheSelection) {
    dialog_.setText(3, "12.50");
    dialog_.selectText(3, {0, 2});
    EXPECT_EQ(type(U"78"), EditOutcome::Accepted);
    EXPECT_EQ(field().text, "78.50");
    EXPECT_EQ(field().selection, (TextSelection{2, 2}));
    EXPECT_EQ(hits(), (std::vector<int>{3, 3}));
}

TEST_F(DialogTest, ACharacterThatTheHostCannotEncodeIsRefusedWithoutAHit) {
    dialog_.setText(3, "a");
    EXPECT_EQ(type(U"\u4e2d"), EditOutcome::Refused);
    for (const char32_t* key : {U"\t", U"\x1f", U"\x7f"})
        EXPECT_EQ(type(key), EditOutcome::Refused) << "keys that write nothing";
    EXPECT_EQ(field().text, "a");
    EXPECT_TRUE(hits().empty());
    EXPECT_EQ(type(U"\u00e9"), EditOutcome::Accepted);
    EXPECT_EQ(field().text, "a\x8e") << "Mac Roman has it";
    EXPECT_EQ(field().shownText(), "a\xc3\xa9");
}

TEST_F(DialogTest, ANewFieldHasItsCaretBeforeItsText) {
    EXPECT_EQ(DialogItem().selection, (TextSelection{0, 0}));
    EXPECT_FALSE(DialogItem().isNumber) << "and takes any text";
}

TEST_F(DialogTest, AFieldHolds255CharactersAndNoMore) {
    dialog_.setText(3, std::string(254, 'x'));
    EXPECT_EQ(type(U"y"), EditOutcome::Accepted);
    EXPECT_EQ(type(U"z"), EditOutcome::Refused);
    dialog_.selectText(3, {0, 1});
    EXPECT_EQ(type(U"z"), EditOutcome::Accepted) << "in place of a selected one";
    EXPECT_EQ(field().text.size(), 255u);
    EXPECT_EQ(dialog_.enterText(3, std::string(256, 'x')), EditOutcome::Refused);
    dialog_.setFocus(4);
    EXPECT_EQ(dialog_.enterText(3, std::string(255, 'x')), EditOutcome::Accepted);
    EXPECT_EQ(dialog_.focus(), 3);
}

TEST_F(DialogTest, ErasingTakesTheSelectionOrOneCharacterAndIsAHitEvenWhenNothingIsLeft) {
    dialog_.setText(3, "abcd");
    dialog_.eraseBackward();
    EXPECT_EQ(field().text, "abc");
    dialog_.selectText(3, {0, 2});
    dialog_.eraseBackward();
    EXPECT_EQ(field().text, "c");
    dialog_.eraseForward();
    EXPECT_EQ(field().text, "");
    dialog_.eraseBackward();
    dialog_.eraseForward();
    EXPECT_EQ(hits(), (std::vector<int>{3, 3, 3, 3, 3}));
}

TEST_F(DialogTest, EnteringAWholeTextIsOneHitAndRefusedAsAWhole) {
    EXPECT_EQ(dialog_.enterText(3, "caf\xc3\xa9"), EditOutcome::Accepted);
    EXPECT_EQ(field().text, "caf\x8e");
    EXPECT_EQ(dialog_.enterText(3, "x\xe4\xb8\xad"), EditOutcome::Refused);
    EXPECT_EQ(field().text, "caf\x8e");
    EXPECT_EQ(dialog_.enterText(1, "x"), EditOutcome::Refused) << "a button is no field";
    EXPECT_EQ(hits(), std::vector<int>{3});
}

TEST_F(DialogTest, NothingIsTypedWhileNoFieldHasTheFocus) {
    dialog_.setFocus(1);
    EXPECT_EQ(type(U"5"), EditOutcome::Refused);
    EXPECT_EQ(dialog_.eraseBackward(), EditOutcome::Refused);
    EXPECT_TRUE(hits().empty());
}

TEST_F(DialogTest, MovingTheFocusIntoAFieldSelectsItsTextWithoutAHit) {
    dialog_.setText(3, "abc");
    dialog_.setFocus(1);
    dialog_.setFocus(3);
    EXPECT_EQ(field().selection, (TextSelection{0, 3}));
    EXPECT_TRUE(hits().empty());
}

TEST_F(DialogTest, SelectionsStayWithinTheText) {
    dialog_.setText(3, "abc");
    dialog_.selectText(3, {0, 32767});
    EXPECT_EQ(field().selection, (TextSelection{0, 3}));
    dialog_.selectText(3, {5, 1});
    EXPECT_EQ(field().selection, (TextSelection{3, 3}));
}

TEST_F(DialogTest, ShowingSelectsTheFocusedTextUnlessTheProgramSelectedSomething) {
    dialog_.setText(3, "50.00");
    dialog_.show();
    EXPECT_EQ(field().selection, (TextSelection{0, 5}));
    Dialog other(description(), {}, ports_);
    other.setText(3, "50.00");
    other.selectText(3, {1, 2});
    other.show();
    EXPECT_EQ(other.item(3)->selection, (TextSelection{1, 2}));
}

TEST_F(DialogTest, APopupTakesOnlyEntriesThatCanBeSelected) {
    EXPECT_EQ(dialog_.chooseEntry(5, 3), EditOutcome::Refused) << "a separator";
    EXPECT_EQ(dialog_.chooseEntry(5, 5), EditOutcome::Refused);
    EXPECT_EQ(dialog_.chooseEntry(5, 4), EditOutcome::Accepted);
    EXPECT_EQ(dialog_.item(5)->value, 4);
    EXPECT_EQ(hits(), std::vector<int>{5});
}

TEST_F(DialogTest, APopupAcceptsEveryValueUpToTheCountThatItsMenuHasByThen) {
    dialog_.setValue(5, 9);
    EXPECT_EQ(dialog_.item(5)->value, 4);
    for (int i = 0; i < 5000; ++i)
        dialog_.item(5)->menu->append({"Another", true, false});
    dialog_.setValue(5, 5004);
    EXPECT_EQ(dialog_.item(5)->value, 5004);
}

TEST_F(DialogTest, EnterAndEscapeStandForTheDefaultAndTheCancelButtonWhileTheStandardKeysAreOn) {
    dialog_.pressKey(DialogKey::Enter);
    EXPECT_TRUE(hits().empty());
    dialog_.setStandardKeys(StandardKeys::On);
    dialog_.pressKey(DialogKey::Escape);
    dialog_.pressKey(DialogKey::Enter);
    EXPECT_EQ(hits(), (std::vector<int>{1, 2}));
}

TEST_F(DialogTest, EnterAndEscapeStandForNothingWhereNoButtonHasTheirRole) {
    DialogDescription without = description();
    for (DialogItem& item : without.items)
        item.role = ButtonRole::Plain;
    Dialog dialog(std::move(without), {}, ports_);
    dialog.setStandardKeys(StandardKeys::On);
    dialog.pressKey(DialogKey::Escape);
    dialog.pressKey(DialogKey::Enter);
    EXPECT_FALSE(dialog.hasHit());
}

TEST_F(DialogTest, DrawsInvalidItemsOnceInTheOrderOfTheirNumbers) {
    dialog_.setDrawProcedure(6, recordDrawing);
    dialog_.setDrawProcedure(4, recordDrawing);
    gDrawn.clear();
    dialog_.drawInvalidItems();
    EXPECT_EQ(gDrawn, (std::vector<int>{4, 6}));
    EXPECT_EQ(ports_.current(), nullptr) << "as it was before";
    dialog_.drawInvalidItems();
    EXPECT_EQ(gDrawn, (std::vector<int>{4, 6}));
    dialog_.invalidate(6);
    EXPECT_TRUE(dialog_.item(6)->invalid);
    dialog_.drawInvalidItems();
    EXPECT_EQ(gDrawn, (std::vector<int>{4, 6, 6}));
    dialog_.setDrawProcedure(6, recordDrawing);
    EXPECT_TRUE(dialog_.item(6)->invalid) << "it may look otherwise now";
}

TEST_F(DialogTest, AnotherScreenGivesAFreshImageAtItsResolutionAndKeepsThePortCurrent) {
    dialog_.setDrawProcedure(4, recordDrawing);
    dialog_.drawInvalidItems();
    ports_.makeCurrent(&dialog_.port());
    const DialogScreen other{2.0, {0x101010, 0, 0, 0x404040}};
    dialog_.setScreen(other);
    EXPECT_EQ(ports_.current(), &dialog_.port());
    EXPECT_EQ(dialog_.screen(), other);
    EXPECT_EQ(dialog_.port().imageWidth(), 400);
    EXPECT_EQ(dialog_.port().pixels()[0], 0xff101010u);
    dialog_.port().eraseRect({.left = 0, .top = 0, .right = 1, .bottom = 1});
    EXPECT_EQ(dialog_.port().pixels()[0], 0xff404040u) << "what erasing leaves is of the theme too";
    EXPECT_TRUE(dialog_.item(4)->invalid);
    EXPECT_EQ(dialog_.port().takeDamage(), dialog_.port().bounds()) << "all of it is to be shown";
}

TEST_F(DialogTest, ErasesToTheColorOfTheScreenThatItIsMadeFor) {
    Dialog dialog(description(), {1.0, {0x101010, 0, 0, 0x404040}}, ports_);
    dialog.port().eraseRect({.left = 0, .top = 0, .right = 1, .bottom = 1});
    EXPECT_EQ(dialog.port().pixels()[0], 0xff404040u);
    EXPECT_EQ(dialog.port().pixels()[1], 0xff101010u);
}

TEST_F(DialogTest, OnlyAPopupHasEntriesToChoose) {
    for (const int other : {0, 1, 3, 4, 7})
        EXPECT_EQ(dialog_.chooseEntry(other, 1), EditOutcome::Refused) << other;
    EXPECT_EQ(dialog_.chooseEntry(5, 2), EditOutcome::Accepted);
    EXPECT_EQ(hits(), std::vector<int>{5});
}

TEST_F(DialogTest, NoPortIsCurrentOnceItsDialogIsGone) {
    {
        Dialog other(description(), {}, ports_);
        ports_.makeCurrent(&other.port());
    }
    EXPECT_EQ(ports_.current(), nullptr);
}

TEST_F(DialogTest, FindsTheItemUnderAPoint) {
    EXPECT_EQ(dialog_.itemAt({10, 10}), dialog_.item(4));
    EXPECT_EQ(dialog_.itemAt({60, 19}), nullptr);
}

struct Recorder : DialogObserver {
    void itemChanged(int item, ItemChange change) override { changes.emplace_back(item, change); }
    void focusChanged() override { ++focusChanges; }
    void shownChanged() override {}
    void pixelsDrawn(const paint::PixelRect& area) override { drawn.push_back(area); }

    std::vector<std::pair<int, ItemChange>> changes;
    std::vector<paint::PixelRect> drawn;
    int focusChanges = 0;
};

TEST_F(DialogTest, TellsItsObserverOnceOfManyMenuChangesAndManyDrawnPixels) {
    Recorder recorder;
    dialog_.setObserver(&recorder);
    dialog_.flush();
    recorder = {};
    for (int i = 0; i < 100; ++i)
        dialog_.item(5)->menu->append({"Another", true, false});
    dialog_.port().paintRect({.left = 1, .top = 1, .right = 3, .bottom = 3});
    dialog_.port().paintRect({.left = 5, .top = 5, .right = 9, .bottom = 6});
    dialog_.flush();
    dialog_.flush();
    EXPECT_EQ(recorder.changes, (std::vector<std::pair<int, ItemChange>>{{5, ItemChange::Menu}}));
    EXPECT_EQ(recorder.drawn,
              (std::vector<paint::PixelRect>{{.left = 1, .top = 1, .right = 9, .bottom = 6}}));
    dialog_.setObserver(nullptr);
}

TEST_F(DialogTest, TellsItsObserverOnceOfWhatAnItemShows) {
    Recorder recorder;
    dialog_.setObserver(&recorder);
    dialog_.flush();
    recorder = {};
    dialog_.painted({.left = 10, .top = 10, .right = 60, .bottom = 20}, {1, 2, 3});
    dialog_.painted({.left = 10, .top = 10, .right = 60, .bottom = 19}, {4, 5, 6});
    dialog_.flush();
    dialog_.flush();
    EXPECT_EQ(recorder.changes, (std::vector<std::pair<int, ItemChange>>{{4, ItemChange::Content}}));
    EXPECT_EQ(dialog_.item(4)->content.color, (drawing::Rgb16{1, 2, 3})) << "all of the item, not a part";
    EXPECT_EQ(dialog_.contentAt({60, 10}), nullptr) << "beside it";
    dialog_.setObserver(nullptr);
}

TEST_F(DialogTest, WhatTheProgramSelectsLeavesTheKeyboardInAnItemWhereItIsAtWork) {
    dialog_.setFocus(4);
    dialog_.holdFocus(true);
    dialog_.setText(3, "abc");
    dialog_.selectText(3, {0, 2});
    EXPECT_EQ(dialog_.focus(), 4);
    EXPECT_EQ(field().selection, (TextSelection{0, 2}));
    dialog_.setFocus(5);
    EXPECT_EQ(dialog_.focus(), 5) << "the user may leave it";
    dialog_.holdFocus(false);
    dialog_.selectText(3, {0, 2});
    EXPECT_EQ(dialog_.focus(), 3);
}

} // namespace
} // namespace easel::runtime
